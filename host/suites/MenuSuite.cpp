#include "suites/SuiteGuard.hpp"
#include "suites/SuiteRegistrations.hpp"

#include <zelmora/ZMMenuSuite.h>

namespace zm::host {

namespace {

MenuItem& Item(Runtime& runtime, ZMMenuItemHandle handle) {
    MenuItem* item = runtime.menus.Find(handle);
    if (item == nullptr) {
        throw HostError(ZM_ERR_BAD_ARGUMENT, "unknown menu item");
    }
    return *item;
}

ZMErr ZM_API AddMenuItem(ZMPluginRef plugin, const char* group, const char* text,
                         int32_t options, ZMMenuItemHandle* item) {
    return GuardSuiteCall(ZM_MENU_SUITE_NAME, 0, [&](Runtime& runtime) {
        RequireArguments(group, text, item);
        if (runtime.plugins.Find(plugin) == nullptr) {
            throw HostError(ZM_ERR_BAD_ARGUMENT, "unknown plug-in");
        }
        *item = runtime.menus.HandleOf(runtime.menus.Add(plugin, group, text, options));
    });
}

ZMErr ZM_API CheckItem(ZMMenuItemHandle item, int32_t checked) {
    return GuardSuiteCall(ZM_MENU_SUITE_NAME, 1, [&](Runtime& runtime) {
        Item(runtime, item).checked = checked != 0;
    });
}

ZMErr ZM_API IsItemChecked(ZMMenuItemHandle item, int32_t* checked) {
    return GuardSuiteCall(ZM_MENU_SUITE_NAME, 2, [&](Runtime& runtime) {
        RequireArguments(checked);
        *checked = Item(runtime, item).checked ? 1 : 0;
    });
}

ZMErr ZM_API EnableItem(ZMMenuItemHandle item, int32_t enabled) {
    return GuardSuiteCall(ZM_MENU_SUITE_NAME, 3, [&](Runtime& runtime) {
        Item(runtime, item).enabled = enabled != 0;
    });
}

ZMErr ZM_API IsItemEnabled(ZMMenuItemHandle item, int32_t* enabled) {
    return GuardSuiteCall(ZM_MENU_SUITE_NAME, 4, [&](Runtime& runtime) {
        RequireArguments(enabled);
        *enabled = Item(runtime, item).enabled ? 1 : 0;
    });
}

ZMErr ZM_API GetItemText(ZMMenuItemHandle item, const char** text) {
    return GuardSuiteCall(ZM_MENU_SUITE_NAME, 5, [&](Runtime& runtime) {
        RequireArguments(text);
        *text = Item(runtime, item).text.c_str();
    });
}

const ZMMenuSuite kTable = {AddMenuItem, CheckItem,     IsItemChecked,
                            EnableItem,  IsItemEnabled, GetItemText};

}  // namespace

void RegisterMenuSuite(SuiteRegistry& registry) {
    registry.Add(ZM_MENU_SUITE_NAME, ZM_MENU_SUITE_VERSION, &kTable);
}

}  // namespace zm::host
