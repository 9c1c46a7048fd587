#include <zelmora/ZMPluginGroupSuite.h>

#include "suites/ArtHandles.hpp"
#include "suites/CurrentDocument.hpp"
#include "suites/PluginRefs.hpp"
#include "suites/SuiteGuard.hpp"
#include "suites/SuiteRegistrations.hpp"

namespace zm::host {

namespace {

// A plug-in group class is the host's record of the plug-in name the group carries.
NamedPlugin& ClassOf(Runtime& runtime, ZMPluginGroupClass groupClass) {
    NamedPlugin* named = runtime.namedPlugins.Find(groupClass);
    if (named == nullptr) {
        throw HostError(ZM_ERR_BAD_ARGUMENT, "not a plug-in group class of this host");
    }
    return *named;
}

ZMErr ZM_API GetPluginArtClass(ZMArtHandle art, ZMPluginGroupClass* groupClass) {
    return GuardSuiteCall(ZM_PLUGIN_GROUP_SUITE_NAME, 0, [&](Runtime& runtime) {
        CurrentDocument(runtime);
        RequireArguments(groupClass);
        const document::Art& group = ArtOf(art, document::ArtType::PluginGroup);
        NamedPlugin& named = runtime.namedPlugins.FindOrAdd(group.pluginName);
        *groupClass = reinterpret_cast<ZMPluginGroupClass>(&named);
    });
}

ZMErr ZM_API GetPluginClassPluginRef(ZMPluginGroupClass groupClass, ZMPluginRef* plugin) {
    return GuardSuiteCall(ZM_PLUGIN_GROUP_SUITE_NAME, 1, [&](Runtime& runtime) {
        RequireArguments(plugin);
        *plugin = RefOf(runtime, ClassOf(runtime, groupClass));
    });
}

ZMErr ZM_API GetPluginClassName(ZMPluginGroupClass groupClass, const char** name) {
    return GuardSuiteCall(ZM_PLUGIN_GROUP_SUITE_NAME, 2, [&](Runtime& runtime) {
        RequireArguments(name);
        *name = ClassOf(runtime, groupClass).name.c_str();
    });
}

ZMErr ZM_API GetPluginArtResultGroup(ZMArtHandle art, ZMArtHandle* result) {
    return GuardSuiteCall(ZM_PLUGIN_GROUP_SUITE_NAME, 3, [&](Runtime& runtime) {
        CurrentDocument(runtime);
        RequireArguments(result);
        *result = HandleOf(&ArtOf(art, document::ArtType::PluginGroup).ResultGroup());
    });
}

ZMPluginGroupSuite MakeTable() {
    ZMPluginGroupSuite table{};
    table.GetPluginArtClass = GetPluginArtClass;
    table.GetPluginClassPluginRef = GetPluginClassPluginRef;
    table.GetPluginClassName = GetPluginClassName;
    table.GetPluginArtResultGroup = GetPluginArtResultGroup;
    return table;
}

const ZMPluginGroupSuite kTable = MakeTable();

}  // namespace

void RegisterPluginGroupSuite(SuiteRegistry& registry) {
    registry.Add(ZM_PLUGIN_GROUP_SUITE_NAME, ZM_PLUGIN_GROUP_SUITE_VERSION, &kTable);
}

}  // namespace zm::host
