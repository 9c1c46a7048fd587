#pragma once

#include "report/HostString.hpp"

#include <zelmora/ZMTypes.h>

#include <cstdint>

namespace tolvane {

// Appends the name of a colour space family (ZM_COLOR_SPACE_GRAY ... ZM_COLOR_SPACE_INDEXED)
// to text: "Grayscale", "RGB", "Lab", "CMYK", "Separation", "DeviceN", "Indexed". Another
// family appends nothing and gives ZM_ERR_PARAMETER. A string that cannot be fetched throws
// zm::Error.
ZMErr ColorSpaceName(int16_t family, HostString& text);

}  // namespace tolvane
