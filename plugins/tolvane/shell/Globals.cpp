#include "shell/Globals.hpp"

namespace tolvane {

Globals* gGlobals = nullptr;

void InitializeGlobals(Globals& globals) {
    globals.mode = 0;
    globals.menuItem = nullptr;
    globals.selectionNotifier = nullptr;
    globals.propertiesNotifier = nullptr;
    globals.panel = nullptr;
    globals.selectionOnly = 1;
    globals.lastNotifyData = nullptr;
    globals.saving = 0;
    globals.cropAreaNotifier = nullptr;
}

}  // namespace tolvane
