#pragma once

#include "document/ColorSpaceStore.hpp"
#include "images/RasterHeader.hpp"

namespace zm::host::images {

// The document's colour space for an image's pixels: its model's process space, or an
// indexed space over it for a palette image; for named inks a separation of the one ink, or
// a DeviceN space of one separation per ink, each ink shown as CMYK. Alpha is no part of a
// colour space.
const document::ColorSpace& ImageColorSpace(document::ColorSpaceStore& store,
                                            const RasterHeader& header);

}  // namespace zm::host::images
