#include "images/RasterHeader.hpp"

#include "images/ImageDecodeError.hpp"

namespace zm::host::images {

namespace {

constexpr uint64_t kMaxSide = 1'000'000;
constexpr uint64_t kMaxPixels = 100'000'000;
constexpr int32_t kMaxBitsPerPixel = 160;  // 20 channels of 8 bits, 10 of 16

}  // namespace

void CheckDescribable(const RasterHeader& header) {
    uint64_t width = header.width;
    uint64_t height = header.height;
    if (width == 0 || height == 0) {
        throw ImageDecodeError(ImageFault::Oversized, "an image without pixels");
    }
    if (width > kMaxSide || height > kMaxSide || width * height > kMaxPixels) {
        throw ImageDecodeError(ImageFault::Oversized, "an image too large to describe");
    }
    if (header.bitsPerPixel <= 0 || header.bitsPerPixel > kMaxBitsPerPixel) {
        throw ImageDecodeError(ImageFault::Oversized, "too many bits per pixel");
    }
}

}  // namespace zm::host::images
