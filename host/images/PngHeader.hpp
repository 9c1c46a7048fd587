#pragma once

#include "images/RasterHeader.hpp"

#include <cstdio>

namespace zm::host::images {

// The header of the PNG image at the stream's position, read with libpng up to the first
// image data. Throws ImageDecodeError (Damaged) for a damaged or truncated header. A palette
// image is indexed RGB; only a stored alpha channel (gray or RGB with alpha) counts as alpha.
RasterHeader ReadPngHeader(std::FILE* stream);

}  // namespace zm::host::images
