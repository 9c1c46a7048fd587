#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace zm::host::document {

// Colour space families, by the colour space suite's codes.
enum class ColorSpaceFamily : int16_t {
    Gray = 1,
    Rgb = 2,
    Lab = 3,
    Cmyk = 4,
    Separation = 5,  // one named ink
    DeviceN = 6,     // several inks, each a member space
    Indexed = 7,     // a palette over a base space
};

// A colour space as a value: two descriptions that are equal describe the same space. The
// spaces it refers to are those of the store that holds it (see ColorSpaceStore), so they
// compare by address. Make one with the functions below, which fill in its inks.
struct ColorSpace {
    ColorSpaceFamily family = ColorSpaceFamily::Rgb;
    // The inks in order, UTF-8: the process families' own, a separation's one, the members'
    // of a DeviceN space in member order, the base's of an indexed space.
    std::vector<std::string> colorants;
    // An indexed space's base; a separation's alternate, what its ink looks like in process
    // colour. Null for the other families.
    const ColorSpace* base = nullptr;
    // A DeviceN space's members, in order; empty for the other families.
    std::vector<const ColorSpace*> members;

    bool operator==(const ColorSpace&) const = default;
};

// Gray, RGB, Lab or CMYK with their inks ("Gray"; "Red", "Green", "Blue"; "L", "a", "b";
// "Cyan", "Magenta", "Yellow", "Black"). Throws std::invalid_argument for another family.
ColorSpace ProcessColorSpace(ColorSpaceFamily family);
// One ink named `ink`, shown as `alternate` in process colour.
ColorSpace SeparationColorSpace(std::string ink, const ColorSpace& alternate);
// The inks of every member, in member order.
ColorSpace DeviceNColorSpace(std::vector<const ColorSpace*> members);
// A palette over `base`, whose inks it has.
ColorSpace IndexedColorSpace(const ColorSpace& base);

}  // namespace zm::host::document
