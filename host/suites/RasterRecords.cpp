#include "suites/RasterRecords.hpp"

#include "images/ImageDecodeError.hpp"
#include "images/RasterHeaderReader.hpp"
#include "runtime/HostError.hpp"

namespace zm::host {

namespace {

ZMRasterColorSpace CodeOf(const images::RasterHeader& header) {
    switch (header.model) {
        case images::PixelModel::Gray:
            return ZM_RASTER_GRAY;
        case images::PixelModel::Rgb:
            return ZM_RASTER_RGB;
        case images::PixelModel::Cmyk:
            return ZM_RASTER_CMYK;
        case images::PixelModel::Lab:
            return ZM_RASTER_LAB;
        case images::PixelModel::Inks:
            return header.inks.size() == 1 ? ZM_RASTER_SEPARATION : ZM_RASTER_DEVICE_N;
    }
    return ZM_RASTER_UNKNOWN;
}

}  // namespace

ZMRasterRecord ToRasterRecord(const images::RasterHeader& header) {
    ZMRasterRecord record{};
    // CheckDescribable has kept both sides and the bits far inside their fields' ranges.
    record.right = static_cast<int32_t>(header.width);
    record.bottom = static_cast<int32_t>(header.height);
    record.colorSpace =
        static_cast<ZMRasterColorSpace>(CodeOf(header) + (header.alpha ? ZM_RASTER_ALPHA : 0));
    record.bitsPerPixel = static_cast<int16_t>(header.bitsPerPixel);
    return record;
}

images::RasterHeader DescribeImage(const document::Art& art) {
    if (!art.image) {
        throw HostError(ZM_ERR_BAD_RASTER, "art without an image");
    }
    try {
        return images::ReadRasterHeader(*art.image);
    } catch (const images::ImageDecodeError& error) {
        throw HostError(ZM_ERR_BAD_RASTER, error.what());
    }
}

}  // namespace zm::host
