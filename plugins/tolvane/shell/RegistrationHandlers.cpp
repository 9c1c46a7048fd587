#include "shell/Handlers.hpp"

#include "shell/Globals.hpp"

#include <zelmora/ZMBasicSuite.h>
#include <zelmora/ZMNotifierSuite.h>
#include <zelmora/ZMPluginFramework.h>

#include <array>

namespace tolvane {

namespace {

ZMRegistrationMessage& Result(void* message) {
    return *static_cast<ZMRegistrationMessage*>(message);
}

struct KeptNotifier {
    const char* type;
    ZMNotifierHandle Globals::*field;
};

// The only notifiers whose handles are kept; the first match wins.
constexpr std::array<KeptNotifier, 3> kKeptNotifiers = {{
    {ZM_NOTIFIER_ART_SELECTION_CHANGED, &Globals::selectionNotifier},
    {ZM_NOTIFIER_ART_PROPERTIES_CHANGED, &Globals::propertiesNotifier},
    {ZM_NOTIFIER_CROP_AREA_MODIFIED, &Globals::cropAreaNotifier},
}};

}  // namespace

ZMErr ZM_API MenuItemCreatedHandler(void* message) {
    if (gGlobals != nullptr) {
        gGlobals->menuItem = static_cast<ZMMenuItemHandle>(Result(message).handle);
    }
    return ZM_ERR_NONE;
}

ZMErr ZM_API NotifierCreatedHandler(void* message) {
    ZMRegistrationMessage& result = Result(message);
    if (gGlobals == nullptr) {
        return ZM_ERR_NONE;
    }
    for (const KeptNotifier& kept : kKeptNotifiers) {
        if (result.d.basicSuite->IsEqual(result.name, kept.type)) {
            gGlobals->*kept.field = static_cast<ZMNotifierHandle>(result.handle);
            break;
        }
    }
    return ZM_ERR_NONE;
}

}  // namespace tolvane
