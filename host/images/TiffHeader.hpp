#pragma once

#include <cstdio>

#include "images/RasterHeader.hpp"

namespace zm::host::images {

// The header of the first image of the TIFF file in the stream, read with libtiff (its
// messages silenced). Photometric interpretations: min-is-white and min-is-black are gray,
// RGB and YCbCr RGB, palette indexed RGB, the Lab ones Lab; separated is CMYK for the CMYK
// ink set (or no ink set and no ink names), else the inks of the InkNames tag, one channel
// each. Extra samples count in the bits per pixel; an alpha extra sample makes the image one
// with alpha. Throws ImageDecodeError: Damaged for a damaged or truncated file, Unrecognized
// for another photometric interpretation, or separated pixels of another ink set or without
// named inks.
RasterHeader ReadTiffHeader(std::FILE* stream);

}  // namespace zm::host::images
