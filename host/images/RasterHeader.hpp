#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace zm::host::images {

// The colours an image's pixels, or its palette's entries, are made of. Inks: named inks of
// the printer's, one channel each (see RasterHeader::inks).
enum class PixelModel { Gray, Rgb, Cmyk, Lab, Inks };

// What an image file's header says about its pixels; the pixels themselves are never read.
struct RasterHeader {
    uint32_t width = 0;   // pixels
    uint32_t height = 0;  // pixels
    PixelModel model = PixelModel::Rgb;
    bool indexed = false;  // each pixel is a palette index; the palette's colours are `model`
    bool alpha = false;    // one of the stored channels is alpha
    // Every stored channel counted, alpha included; an indexed image's bits per index.
    int32_t bitsPerPixel = 0;
    std::vector<std::string> inks;  // PixelModel::Inks: the inks' names, UTF-8, channel order

    bool operator==(const RasterHeader&) const = default;
};

// Throws ImageDecodeError (Oversized) for dimensions the host will not describe: no pixels,
// a side over 1,000,000, more than 100,000,000 pixels or more than 160 bits per pixel. The
// limits keep channels x width x height within a signed 32-bit integer for every image that
// passes, so whoever sizes an image from its description cannot overflow.
void CheckDescribable(const RasterHeader& header);

}  // namespace zm::host::images
