#pragma once

#include "document/ArtContent.hpp"
#include "images/RasterHeader.hpp"

#include <cstdio>

namespace zm::host::images {

// The header of the PNG, JPEG or TIFF image in the stream, told apart by its signature.
// Throws ImageDecodeError: Unrecognized for another format, Damaged for a damaged or
// truncated image, Oversized for one CheckDescribable refuses.
RasterHeader ReadRasterHeader(std::FILE* stream);

// The header of an image of the document: its embedded bytes, or its linked file (a missing
// file is Damaged).
RasterHeader ReadRasterHeader(const document::Image& image);

}  // namespace zm::host::images
