#pragma once

#include "images/RasterHeader.hpp"

#include <cstdio>

namespace zm::host::images {

// The header of the JPEG image at the stream's position, read with libjpeg up to the start
// of the first scan. Four components are CMYK (libjpeg reads the Adobe marker to tell CMYK
// from YCCK; both are CMYK pixels). Throws ImageDecodeError (Damaged) for a damaged or
// truncated header.
RasterHeader ReadJpegHeader(std::FILE* stream);

}  // namespace zm::host::images
