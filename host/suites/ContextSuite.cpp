#include "suites/SuiteGuard.hpp"
#include "suites/SuiteRegistrations.hpp"

#include <zelmora/ZMContextSuite.h>

namespace zm::host {

namespace {

ZMErr ZM_API GetContextDepth(int32_t* depth) {
    return GuardSuiteCall(ZM_CONTEXT_SUITE_NAME, 0, [&](Runtime& runtime) {
        RequireArguments(depth);
        *depth = runtime.contexts.Depth();
    });
}

ZMErr ZM_API OpenContext(ZMPluginRef plugin, ZMAppContext* context) {
    return GuardSuiteCall(ZM_CONTEXT_SUITE_NAME, 1, [&](Runtime& runtime) {
        RequireArguments(context);
        if (runtime.plugins.Find(plugin) == nullptr) {
            throw HostError(ZM_ERR_BAD_ARGUMENT, "unknown plug-in");
        }
        *context = runtime.contexts.Open(plugin);
    });
}

ZMErr ZM_API CloseContext(ZMAppContext context) {
    return GuardSuiteCall(ZM_CONTEXT_SUITE_NAME, 2, [&](Runtime& runtime) {
        if (!runtime.contexts.Close(context)) {
            throw HostError(ZM_ERR_BAD_ARGUMENT, "not the innermost context");
        }
    });
}

const ZMContextSuite kTable = {GetContextDepth, OpenContext, CloseContext};

}  // namespace

void RegisterContextSuite(SuiteRegistry& registry) {
    registry.Add(ZM_CONTEXT_SUITE_NAME, ZM_CONTEXT_SUITE_VERSION, &kTable);
}

}  // namespace zm::host
