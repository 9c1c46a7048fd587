#include "suites/SuiteGuard.hpp"
#include "suites/SuiteRegistrations.hpp"

#include <zelmora/ZMMenuSuite.h>

namespace zm::host {

namespace {

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
        runtime.menus.Require(item).checked = checked != 0;
    });
}

ZMErr ZM_API IsItemChecked(ZMMenuItemHandle item, int32_t* checked) {
    return GuardSuiteCall(ZM_MENU_SUITE_NAME, 2, [&](Runtime& runtime) {
        RequireArguments(checked);
        *checked = runtime.menus.Require(item).checked ? 1 : 0;
    });
}

ZMErr ZM_API EnableItem(ZMMenuItemHandle item, int32_t enabled) {
    return GuardSuiteCall(ZM_MENU_SUITE_NAME, 3, [&](Runtime& runtime) {
        runtime.menus.Require(item).enabled = enabled != 0;
    });
}

ZMErr ZM_API IsItemEnabled(ZMMenuItemHandle item, int32_t* enabled) {
    return GuardSuiteCall(ZM_MENU_SUITE_NAME, 4, [&](Runtime& runtime) {
        RequireArguments(enabled);
        *enabled = runtime.menus.Require(item).enabled ? 1 : 0;
    });
}

ZMErr ZM_API GetItemText(ZMMenuItemHandle item, const char** text) {
    return GuardSuiteCall(ZM_MENU_SUITE_NAME, 5, [&](Runtime& runtime) {
        RequireArguments(text);
        *text = runtime.menus.Require(item).text.c_str();
    });
}

const ZMMenuSuite kTable = {AddMenuItem, CheckItem,     IsItemChecked,
                            EnableItem,  IsItemEnabled, GetItemText};

}  // namespace

void RegisterMenuSuite(SuiteRegistry& registry) {
    registry.Add(ZM_MENU_SUITE_NAME, ZM_MENU_SUITE_VERSION, &kTable);
}

}  // namespace zm::host
