#pragma once

#include "document/ColorSpaceStore.hpp"
#include "images/RasterHeader.hpp"

namespace zm::host::images {

// The document's colour space for an image's pixels: its model's process space, or an
// indexed space over it for a palette image. Alpha is no part of a colour space.
const document::ColorSpace& ImageColorSpace(document::ColorSpaceStore& store,
                                            const RasterHeader& header);

}  // namespace zm::host::images
