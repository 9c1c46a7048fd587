#include "images/ImageColorSpace.hpp"

#include <string>
#include <utility>
#include <vector>

namespace zm::host::images {

namespace {

using document::ColorSpaceFamily;

ColorSpaceFamily FamilyOf(PixelModel model) {
    switch (model) {
        case PixelModel::Gray:
            return ColorSpaceFamily::Gray;
        case PixelModel::Rgb:
            return ColorSpaceFamily::Rgb;
        case PixelModel::Cmyk:
            return ColorSpaceFamily::Cmyk;
        case PixelModel::Lab:
            return ColorSpaceFamily::Lab;
        case PixelModel::Inks:
            break;
    }
    return ColorSpaceFamily::Rgb;
}

// One separation per ink, shown as CMYK, the process inks that named inks stand beside; a
// single ink is that separation, several a DeviceN space of them in channel order.
const document::ColorSpace& InkColorSpace(document::ColorSpaceStore& store,
                                          const std::vector<std::string>& inks) {
    const document::ColorSpace& cmyk =
        Intern(store, document::ProcessColorSpace(ColorSpaceFamily::Cmyk));
    std::vector<const document::ColorSpace*> members;
    for (const std::string& ink : inks) {
        members.push_back(&Intern(store, document::SeparationColorSpace(ink, cmyk)));
    }
    if (members.size() == 1) {
        return *members.front();
    }
    return Intern(store, document::DeviceNColorSpace(std::move(members)));
}

}  // namespace

const document::ColorSpace& ImageColorSpace(document::ColorSpaceStore& store,
                                            const RasterHeader& header) {
    if (header.model == PixelModel::Inks) {
        return InkColorSpace(store, header.inks);
    }
    const document::ColorSpace& process =
        Intern(store, document::ProcessColorSpace(FamilyOf(header.model)));
    if (!header.indexed) {
        return process;
    }
    return Intern(store, document::IndexedColorSpace(process));
}

}  // namespace zm::host::images
