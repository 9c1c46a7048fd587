#include "suites/SuiteGuard.hpp"
#include "suites/SuiteRegistrations.hpp"

#include <zelmora/ZMNotifierSuite.h>

namespace zm::host {

namespace {

ZMErr ZM_API AddNotifier(ZMPluginRef plugin, const char* owner, const char* type,
                         ZMNotifierHandle* notifier) {
    return GuardSuiteCall(ZM_NOTIFIER_SUITE_NAME, 0, [&](Runtime& runtime) {
        RequireArguments(owner, type, notifier);
        if (*type == '\0' || runtime.plugins.Find(plugin) == nullptr) {
            throw HostError(ZM_ERR_BAD_ARGUMENT, "no type or unknown plug-in");
        }
        *notifier = runtime.notifiers.HandleOf(runtime.notifiers.Add(plugin, owner, type));
    });
}

ZMErr ZM_API SetNotifierActive(ZMNotifierHandle notifier, int32_t active) {
    return GuardSuiteCall(ZM_NOTIFIER_SUITE_NAME, 1, [&](Runtime& runtime) {
        runtime.notifiers.Require(notifier).active = active != 0;
    });
}

ZMErr ZM_API IsNotifierActive(ZMNotifierHandle notifier, int32_t* active) {
    return GuardSuiteCall(ZM_NOTIFIER_SUITE_NAME, 2, [&](Runtime& runtime) {
        RequireArguments(active);
        *active = runtime.notifiers.Require(notifier).active ? 1 : 0;
    });
}

ZMErr ZM_API GetNotifierType(ZMNotifierHandle notifier, const char** type) {
    return GuardSuiteCall(ZM_NOTIFIER_SUITE_NAME, 3, [&](Runtime& runtime) {
        RequireArguments(type);
        *type = runtime.notifiers.Require(notifier).type.c_str();
    });
}

const ZMNotifierSuite kTable = {AddNotifier, SetNotifierActive, IsNotifierActive,
                                GetNotifierType};

}  // namespace

void RegisterNotifierSuite(SuiteRegistry& registry) {
    registry.Add(ZM_NOTIFIER_SUITE_NAME, ZM_NOTIFIER_SUITE_VERSION, &kTable);
}

}  // namespace zm::host
