#include "shell/PluginDescription.hpp"

#include <zelmora/ZMBasicSuite.h>
#include <zelmora/ZMPluginFramework.h>
#include <zelmora/ZMPluginMain.h>

namespace tolvane {

namespace {

// The framework's own slot for the basic suite: set only by a signed "HV Access"/"Reload",
// which the host sends first whenever it loads the module.
ZMBasicSuite* sFrameworkBasicSuite = nullptr;

}  // namespace

}  // namespace tolvane

extern "C" __attribute__((visibility("default"))) ZMErr ZM_API PluginMain(const char* caller,
                                                                         const char* selector,
                                                                         void* message) {
    using namespace tolvane;
    ZMPluginDescription* description = &gPluginDescription;
    auto* record = static_cast<ZMMessageRecord*>(message);
    if (record != nullptr && record->signature == static_cast<uint32_t>(ZM_MESSAGE_SIGNATURE)) {
        ZMBasicSuite* basic = record->basicSuite;
        if (basic->IsEqual(caller, ZM_CALLER_ACCESS) && basic->IsEqual(selector, ZM_SELECTOR_RELOAD)) {
            sFrameworkBasicSuite = basic;
        }
    }
    // A host that breaks the load order gets a code instead of a crash.
    if (sFrameworkBasicSuite == nullptr) {
        return ZM_ERR_NOT_STARTED;
    }
    const void* suite = nullptr;
    ZMErr error = sFrameworkBasicSuite->AcquireSuite(ZM_LMB_BASIC_SUITE_NAME,
                                                     ZM_LMB_BASIC_SUITE_VERSION, &suite);
    if (error != ZM_ERR_NONE) {
        return error;
    }
    if (suite == nullptr) {
        return ZM_ERR_NONE;
    }
    // The basic suite may be replaced by this very message, so remember which one lent it.
    ZMBasicSuite* lender = sFrameworkBasicSuite;
    error = static_cast<const ZMLMBBasicSuite*>(suite)->Dispatch(description, caller, selector,
                                                                 message);
    lender->ReleaseSuite(ZM_LMB_BASIC_SUITE_NAME, ZM_LMB_BASIC_SUITE_VERSION);
    return error;
}
