#include "shell/AppContext.hpp"

#include "shell/FrameworkCalls.hpp"
#include "shell/SuiteSet.hpp"

namespace tolvane {

ScopedAppContext::ScopedAppContext() {
    ZMPluginRef plugin = nullptr;
    error_ = GetPluginRef(&plugin);
    if (error_ == ZM_ERR_NONE) {
        error_ = sContextSuite->OpenContext(plugin, &context_);
        open_ = error_ == ZM_ERR_NONE;
    }
}

ScopedAppContext::~ScopedAppContext() {
    if (open_) {
        sContextSuite->CloseContext(context_);
    }
}

}  // namespace tolvane
