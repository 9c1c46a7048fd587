#include "shell/PanelCreation.hpp"

#include "panel/TolvanePanel.hpp"
#include "shell/FrameworkCalls.hpp"
#include "shell/Globals.hpp"

#include <new>

namespace tolvane {

ZMErr CreatePanel() {
    ZMPluginRef plugin = nullptr;
    if (ZMErr error = GetPluginRef(&plugin); error != ZM_ERR_NONE) {
        return error;
    }
    try {
        gGlobals->panel = new (std::nothrow) TolvanePanel(plugin);
    } catch (...) {
        // Whatever went wrong inside the toolkit or the host, the host hears one code.
        return ZM_ERR_CANT;
    }
    return ZM_ERR_NONE;
}

void DeletePanel() {
    if (gGlobals != nullptr && gGlobals->panel != nullptr) {
        delete gGlobals->panel;
        gGlobals->panel = nullptr;
    }
}

}  // namespace tolvane
