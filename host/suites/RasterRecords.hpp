#pragma once

#include <zelmora/ZMRasterSuite.h>

#include "document/Art.hpp"
#include "images/RasterHeader.hpp"

namespace zm::host {

// The raster record of an image header: bounds from 0, 0 to its size in pixels, its colour
// space code (an indexed image has its palette's; named inks are a separation when there is
// one, DeviceN when there are several) plus ZM_RASTER_ALPHA when it has alpha.
ZMRasterRecord ToRasterRecord(const images::RasterHeader& header);

// The header of placed or raster art's image; HostError(ZM_ERR_BAD_RASTER) when the art has
// no image or the image cannot be described.
images::RasterHeader DescribeImage(const document::Art& art);

}  // namespace zm::host
