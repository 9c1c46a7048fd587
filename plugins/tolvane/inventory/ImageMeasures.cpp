#include "inventory/ImageMeasures.hpp"

namespace tolvane {

namespace {

constexpr float kPointsPerInch = 72.0f;

// Two's complement product, wrapping where a signed product would overflow, as the figures'
// 32-bit arithmetic does.
int32_t WrappingProduct(int32_t a, int32_t b) {
    return static_cast<int32_t>(static_cast<uint32_t>(a) * static_cast<uint32_t>(b));
}

}  // namespace

int32_t ImagePixelExtent(int32_t low, int32_t high) {
    return static_cast<int32_t>(static_cast<uint32_t>(high) - static_cast<uint32_t>(low));
}

int32_t ImageChannels(int16_t bitsPerPixel) { return bitsPerPixel == 1 ? 1 : bitsPerPixel / 8; }

int32_t ImageKilobytes(int16_t bitsPerPixel, int32_t width, int32_t height) {
    if (bitsPerPixel == 1) {
        return WrappingProduct(width, height) / 1024 / 8;
    }
    return WrappingProduct(WrappingProduct(ImageChannels(bitsPerPixel), height), width) / 1024;
}

float ImageResolution(int32_t pixels, float points) {
    if (points == 0.0f) {
        return 0.0f;
    }
    return static_cast<float>(pixels) / points * kPointsPerInch;
}

}  // namespace tolvane
