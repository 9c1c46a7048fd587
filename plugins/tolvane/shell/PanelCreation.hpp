#pragma once

#include <zelmora/ZMTypes.h>

namespace tolvane {

// Makes the panel and stores it in Globals::panel; it starts hidden. Returns the host's code
// when the plug-in reference cannot be had, and ZM_ERR_CANT when building the panel throws
// (the panel field is then left as it was).
ZMErr CreatePanel();

// Deletes the panel, if there is one, and clears Globals::panel.
void DeletePanel();

}  // namespace tolvane
