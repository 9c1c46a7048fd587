#include "shell/Handlers.hpp"

#include "panel/TolvanePanel.hpp"
#include "report/Error.hpp"
#include "shell/Globals.hpp"
#include "shell/PanelCreation.hpp"

namespace tolvane {

// "&Document Info" shows the panel when it is hidden and hides it when it is shown, making
// it first when there is none yet.
ZMErr ZM_API MenuCommandHandler(void* /*message*/) {
    if (gGlobals == nullptr) {
        return ZM_ERR_NOT_STARTED;
    }
    if (TolvanePanel* panel = gGlobals->panel) {
        try {
            if (panel->IsVisible()) {
                panel->Hide();
            } else {
                panel->Show();
            }
            panel->Refresh();
        } catch (const zm::Error& error) {
            return error.Code();
        } catch (...) {
            return ZM_ERR_CANT;
        }
        return ZM_ERR_NONE;
    }
    ZMErr created = CreatePanel();
    if (created == ZM_ERR_NONE && gGlobals->panel != nullptr) {
        try {
            gGlobals->panel->Show();
        } catch (...) {
            return ZM_ERR_CANT;
        }
    }
    return created;
}

}  // namespace tolvane
