#pragma once

#include "report/HostString.hpp"

#include <zelmora/ZMArtTypes.h>

namespace tolvane {

// The description of one image, line by line, each line ending in "\r\n" but the asset
// address, which ends the block when there is one.
struct RasterImageBlock {
    HostString text;
    // Placed art always is; raster art when its pixels come from a file rather than from the
    // document. A linked block opens with the file's path.
    bool linked = false;
};

// Describes raster art (placed false) or placed art whose file is an image (placed true):
// path (linked images), type, bits per pixel, channels, the colour space and its colorants
// (raster art of a separation, DeviceN or indexed space), size, dimensions, resolution and
// asset address. Throws zm::Error with the code of the first host query that fails.
RasterImageBlock DescribeRasterImage(ZMArtHandle art, bool placed);

}  // namespace tolvane
