#pragma once

#include "report/HostString.hpp"

#include <zelmora/ZMArtTypes.h>

#include <optional>

namespace tolvane {

// "URL: " and the asset address the host keeps for placed or raster art; nothing when the
// host offers no asset suite, keeps no addresses, cannot answer for the art or has an empty
// address. The asset suite is acquired for this call only. Throws zm::Error with the string
// suite's code when the text cannot be made.
std::optional<HostString> AssetUrlText(ZMArtHandle art);

}  // namespace tolvane
