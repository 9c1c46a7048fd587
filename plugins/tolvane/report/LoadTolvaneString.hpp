#pragma once

#include "report/HostString.hpp"
#include "report/StringGroups.hpp"

#include <cstdint>

namespace tolvane {

// The localized text of group[index], fetched from the host at every use (never cached), so
// a change of locale shows at once. Throws zm::Error with the suite's code.
HostString LoadTolvaneString(StringGroup group, int16_t index);

// The same for a key of its own ("$$$/Tolvane/Str/ResSpot/1=(RGB)").
HostString LoadTolvaneString(const char* key);

}  // namespace tolvane
