#pragma once

#include <cstdint>

namespace tolvane {

// The figures of an image description, in the image's own terms.

// The pixels from low to high (right - left, bottom - top), in signed 32-bit arithmetic.
int32_t ImagePixelExtent(int32_t low, int32_t high);

// 1 for a black and white bitmap (1 bit per pixel), otherwise one channel for every 8 bits
// (truncating): 24 bits are 3, 48 bits (16 bits a channel) 6.
int32_t ImageChannels(int16_t bitsPerPixel);

// The image's size in kilobytes: a bitmap's pixels / 1024 / 8, otherwise channels x height x
// width / 1024, in signed 32-bit arithmetic, each division truncating toward zero. Bits per
// channel other than 8 are deliberately not considered. A product past the 32-bit range wraps
// as the arithmetic does, which the host's limits on image sizes never reach.
int32_t ImageKilobytes(int16_t bitsPerPixel, int32_t width, int32_t height);

// Pixels per inch over a length in points (72 to the inch), in single precision; 0 over a
// length of 0.
float ImageResolution(int32_t pixels, float points);

}  // namespace tolvane
