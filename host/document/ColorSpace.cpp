#include "document/ColorSpace.hpp"

#include <stdexcept>
#include <utility>

namespace zm::host::document {

ColorSpace ProcessColorSpace(ColorSpaceFamily family) {
    ColorSpace space;
    space.family = family;
    switch (family) {
        case ColorSpaceFamily::Gray:
            space.colorants = {"Gray"};
            break;
        case ColorSpaceFamily::Rgb:
            space.colorants = {"Red", "Green", "Blue"};
            break;
        case ColorSpaceFamily::Lab:
            space.colorants = {"L", "a", "b"};
            break;
        case ColorSpaceFamily::Cmyk:
            space.colorants = {"Cyan", "Magenta", "Yellow", "Black"};
            break;
        default:
            throw std::invalid_argument("not a process colour space family");
    }
    return space;
}

ColorSpace SeparationColorSpace(std::string ink, const ColorSpace& alternate) {
    ColorSpace space;
    space.family = ColorSpaceFamily::Separation;
    space.colorants.push_back(std::move(ink));
    space.base = &alternate;
    return space;
}

ColorSpace DeviceNColorSpace(std::vector<const ColorSpace*> members) {
    ColorSpace space;
    space.family = ColorSpaceFamily::DeviceN;
    for (const ColorSpace* member : members) {
        if (member == nullptr) {
            throw std::invalid_argument("a DeviceN member that is no space");
        }
        space.colorants.insert(space.colorants.end(), member->colorants.begin(),
                               member->colorants.end());
    }
    space.members = std::move(members);
    return space;
}

ColorSpace IndexedColorSpace(const ColorSpace& base) {
    ColorSpace space;
    space.family = ColorSpaceFamily::Indexed;
    space.colorants = base.colorants;
    space.base = &base;
    return space;
}

}  // namespace zm::host::document
