#pragma once

#include "report/HostString.hpp"

#include <zelmora/ZMColorSpaceSuite.h>
#include <zelmora/ZMRasterSuite.h>

namespace tolvane {

// The word that names an image's kind by its raster record's colour space code: gray is a
// black and white bitmap at 1 bit per pixel, grayscale otherwise; ink images are single ink
// when `space` (null for placed images) is a colour space with exactly one colorant, mixed
// otherwise; alpha makes each a transparent one. A code outside the host's gives an empty
// word. Throws zm::Error with the suite's code when a word cannot be fetched.
HostString ImageTypeWord(const ZMRasterRecord& record, ZMColorSpaceHandle space);

}  // namespace tolvane
