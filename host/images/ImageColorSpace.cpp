#include "images/ImageColorSpace.hpp"

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
    }
    return ColorSpaceFamily::Rgb;
}

}  // namespace

const document::ColorSpace& ImageColorSpace(document::ColorSpaceStore& store,
                                            const RasterHeader& header) {
    const document::ColorSpace& process =
        Intern(store, document::ProcessColorSpace(FamilyOf(header.model)));
    if (!header.indexed) {
        return process;
    }
    return Intern(store, document::IndexedColorSpace(process));
}

}  // namespace zm::host::images
