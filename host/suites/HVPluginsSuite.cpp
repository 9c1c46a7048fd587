#include <zelmora/HVPluginsSuite.h>

#include <cstddef>
#include <string>
#include <vector>

#include "suites/PluginRefs.hpp"
#include "suites/SuiteGuard.hpp"
#include "suites/SuiteRegistrations.hpp"

namespace zm::host {

namespace {

ZMErr ZM_API CountPlugins(int32_t* count) {
    return GuardSuiteCall(ZM_HV_PLUGINS_SUITE_NAME, 0, [&](Runtime& runtime) {
        RequireArguments(count);
        *count = static_cast<int32_t>(KnownPlugins(runtime).size());
    });
}

ZMErr ZM_API GetNthPlugin(int32_t index, ZMPluginRef* plugin) {
    return GuardSuiteCall(ZM_HV_PLUGINS_SUITE_NAME, 1, [&](Runtime& runtime) {
        RequireArguments(plugin);
        std::vector<ZMPluginRef> known = KnownPlugins(runtime);
        if (index < 0 || static_cast<std::size_t>(index) >= known.size()) {
            throw HostError(ZM_ERR_BAD_ARGUMENT, "no plug-in at that index");
        }
        *plugin = known[static_cast<std::size_t>(index)];
    });
}

ZMErr ZM_API GetPluginName(ZMPluginRef plugin, const char** name) {
    return GuardSuiteCall(ZM_HV_PLUGINS_SUITE_NAME, 2, [&](Runtime& runtime) {
        RequireArguments(name);
        const std::string* known = NameOf(runtime, plugin);
        if (known == nullptr) {
            throw HostError(ZM_ERR_BAD_ARGUMENT, "not a plug-in the host knows");
        }
        *name = known->c_str();
    });
}

HVPluginsSuite MakeTable() {
    HVPluginsSuite table{};
    table.CountPlugins = CountPlugins;
    table.GetNthPlugin = GetNthPlugin;
    table.GetPluginName = GetPluginName;
    return table;
}

const HVPluginsSuite kTable = MakeTable();

}  // namespace

void RegisterHVPluginsSuite(SuiteRegistry& registry) {
    registry.Add(ZM_HV_PLUGINS_SUITE_NAME, ZM_HV_PLUGINS_SUITE_VERSION, &kTable);
}

}  // namespace zm::host
