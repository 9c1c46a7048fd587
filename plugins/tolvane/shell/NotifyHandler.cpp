#include "shell/Handlers.hpp"

#include "panel/PanelCategories.hpp"
#include "panel/TolvanePanel.hpp"
#include "shell/Globals.hpp"
#include "shell/OptionalSuites.hpp"
#include "shell/PanelCreation.hpp"
#include "stats/DocumentContentStatistics.hpp"

#include <zelmora/ZMNotifierSuite.h>
#include <zelmora/ZMPluginMain.h>

#include <cstring>

namespace tolvane {

namespace {

bool Is(const char* type, const char* name) { return std::strcmp(type, name) == 0; }

// Whether a notification about the document or the art calls for a new report. The same
// data twice means the same change; the filters that follow leave lastNotifyData alone, so
// a later notification with that data still counts.
bool CallsForRefresh(const char* type, void* data) {
    if (data == gGlobals->lastNotifyData) {
        return false;
    }
    int16_t mode = gGlobals->mode;
    if (mode == kModeDocument && (Is(type, ZM_NOTIFIER_ART_SELECTION_CHANGED) ||
                                  Is(type, ZM_NOTIFIER_ART_PROPERTIES_CHANGED))) {
        return false;
    }
    if (Is(type, ZM_NOTIFIER_PREFERENCE_CHANGED) && mode != kModeDocument &&
        mode != kModeObjects) {
        return false;
    }
    gGlobals->lastNotifyData = data;
    return true;
}

void RefreshPanel(TolvanePanel& panel) {
    try {
        panel.Refresh();
    } catch (...) {
        // A notification never fails; the next refresh tries again.
    }
}

}  // namespace

ZMErr ZM_API NotifyHandler(void* message) {
    auto& notification = *static_cast<ZMNotifierMessage*>(message);
    const char* type = notification.type;
    if (type == nullptr) {
        return ZM_ERR_NONE;
    }
    if (Is(type, ZM_NOTIFIER_APPLICATION_STARTED)) {
        AcquireOptionalSuites(notification.d.basicSuite);
        // One panel per plug-in: a second start notice finds it made.
        if (gGlobals == nullptr || gGlobals->panel != nullptr) {
            return ZM_ERR_NONE;
        }
        return CreatePanel();
    }
    if (Is(type, ZM_NOTIFIER_DOCUMENT_ABOUT_TO_CLOSE)) {
        // Logged whether or not the panel is open; a notifier handler never fails.
        LogDocumentContentStatistics();
        return ZM_ERR_NONE;
    }
    if (gGlobals == nullptr || gGlobals->panel == nullptr || !gGlobals->panel->IsVisible()) {
        return ZM_ERR_NONE;
    }
    TolvanePanel& panel = *gGlobals->panel;
    if (Is(type, ZM_NOTIFIER_AFTER_ART_SETUP)) {
        RefreshPanel(panel);
    } else if (Is(type, ZM_NOTIFIER_CROP_AREA_MODIFIED)) {
        if (gGlobals->mode == kModeDocument) {
            RefreshPanel(panel);
        }
    } else if (CallsForRefresh(type, notification.notifyData)) {
        RefreshPanel(panel);
    }
    return ZM_ERR_NONE;
}

}  // namespace tolvane
