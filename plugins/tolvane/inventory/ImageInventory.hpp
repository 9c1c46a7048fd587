#pragma once

#include <zelmora/ZMArtTypes.h>
#include <zelmora/ZMTypes.h>

#include <cstdint>

namespace tolvane {

// Describes placed art whose file is not an image the host reads, once per path: an empty
// separator entry, the path, "Type: EPS" or "Type: Other" and the asset address when there is
// one, appended to the linked-image list. 0; ZM_ERR_NO_MEMORY, without an alert, when the
// list cannot take an entry; the host's code when the placed type cannot be read.
ZMErr AddPlacedArt(ZMArtHandle placed);

// Describes raster art (placed 0) or placed art whose file is an image (placed 1) in one block
// of lines: in the linked-image list, once per distinct block, when the image is linked,
// otherwise in the embedded-image list, every time. Rasters of a symbol set are only counted
// as such. In the spot colour category, and while saving, the image's spot inks are listed
// too. An image the host cannot describe is left out and the failure is not reported: 0.
// ZM_ERR_NO_MEMORY after the out-of-memory alert when a list cannot take an entry.
ZMErr AddRasterArt(ZMArtHandle art, int32_t placed);

}  // namespace tolvane
