#pragma once

#include "images/RasterHeader.hpp"

#include <cstdio>

namespace zm::host::images {

// The header of the first image of the TIFF file in the stream, read with libtiff (its
// messages silenced). Photometric interpretations: min-is-white and min-is-black are gray,
// RGB and YCbCr RGB, palette indexed RGB, separated CMYK (the CMYK ink set only), the Lab
// ones Lab. Extra samples count in the bits per pixel; an alpha extra sample makes the image
// one with alpha. Throws ImageDecodeError: Damaged for a damaged or truncated file,
// Unrecognized for another photometric interpretation or ink set.
RasterHeader ReadTiffHeader(std::FILE* stream);

}  // namespace zm::host::images
