#pragma once

#include <zelmora/ZMPluginFramework.h>

namespace tolvane {

// The static record handed to every framework call: name, declarations (suites, the menu
// item, eleven notifiers) and the two handler tables.
extern ZMPluginDescription gPluginDescription;

inline constexpr const char* kPluginName = "Tolvane";

}  // namespace tolvane
