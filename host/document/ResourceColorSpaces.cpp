#include "document/ResourceColorSpaces.hpp"

#include <algorithm>
#include <vector>

namespace zm::host::document {

namespace {

ColorSpaceFamily ModelFamily(CustomColorKind kind) {
    switch (kind) {
        case CustomColorKind::Cmyk:
            return ColorSpaceFamily::Cmyk;
        case CustomColorKind::Lab:
            return ColorSpaceFamily::Lab;
        case CustomColorKind::Rgb:
            break;
    }
    return ColorSpaceFamily::Rgb;
}

const ColorSpace& Process(ColorSpaceStore& store, ColorSpaceFamily family) {
    return Intern(store, ProcessColorSpace(family));
}

}  // namespace

const ColorSpace& SwatchColorSpace(ColorSpaceStore& store, const CustomColor& swatch) {
    const ColorSpace& model = Process(store, ModelFamily(swatch.kind));
    if (!swatch.spot) {
        return model;
    }
    return Intern(store, SeparationColorSpace(swatch.name, model));
}

const ColorSpace* PaintColorSpace(ColorSpaceStore& store, const Color& color) {
    switch (color.kind) {
        case ColorKind::Gray:
            return &Process(store, ColorSpaceFamily::Gray);
        case ColorKind::Rgb:
            return &Process(store, ColorSpaceFamily::Rgb);
        case ColorKind::Cmyk:
            return &Process(store, ColorSpaceFamily::Cmyk);
        case ColorKind::Custom:
            return color.custom == nullptr ? nullptr : &SwatchColorSpace(store, *color.custom);
        case ColorKind::Pattern:
        case ColorKind::Gradient:
        case ColorKind::None:
            break;
    }
    return nullptr;
}

const ColorSpace& GradientColorSpace(ColorSpaceStore& store, const Gradient& gradient) {
    std::vector<const ColorSpace*> members;
    for (const GradientStop& stop : gradient.stops) {
        const ColorSpace* space = PaintColorSpace(store, stop.color);
        if (space != nullptr && std::find(members.begin(), members.end(), space) == members.end()) {
            members.push_back(space);
        }
    }
    return Intern(store, DeviceNColorSpace(std::move(members)));
}

}  // namespace zm::host::document
