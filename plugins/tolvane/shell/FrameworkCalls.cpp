#include "shell/FrameworkCalls.hpp"

#include "shell/PluginDescription.hpp"
#include "shell/SuiteSet.hpp"

namespace tolvane {

namespace {

const ZMLMBPluginSuite* sFrameworkSuite = nullptr;

ZMErr Suite(const ZMLMBPluginSuite** suite) {
    if (sFrameworkSuite == nullptr) {
        if (sBasicSuite == nullptr) {
            return ZM_ERR_NOT_STARTED;
        }
        const void* table = nullptr;
        ZMErr error = sBasicSuite->AcquireSuite(ZM_LMB_PLUGIN_SUITE_NAME,
                                                ZM_LMB_PLUGIN_SUITE_VERSION, &table);
        if (error != ZM_ERR_NONE) {
            return error;
        }
        sFrameworkSuite = static_cast<const ZMLMBPluginSuite*>(table);
    }
    *suite = sFrameworkSuite;
    return ZM_ERR_NONE;
}

// Calls one entry of the suite with the description record first.
template <typename Call>
ZMErr WithSuite(Call&& call) {
    const ZMLMBPluginSuite* suite = nullptr;
    if (ZMErr error = Suite(&suite); error != ZM_ERR_NONE) {
        return error;
    }
    return call(*suite, &gPluginDescription);
}

}  // namespace

ZMErr StartFramework() {
    return WithSuite([](const auto& suite, auto* record) { return suite.StartPlugin(record); });
}

ZMErr StopFramework() {
    return WithSuite([](const auto& suite, auto* record) { return suite.StopPlugin(record); });
}

ZMErr GetPluginRef(ZMPluginRef* ref) {
    return WithSuite([&](const auto& suite, auto* record) { return suite.GetPluginRef(record, ref); });
}

ZMErr GetFrameworkData(const ZMFrameworkPluginData** data) {
    return WithSuite(
        [&](const auto& suite, auto* record) { return suite.GetPluginData(record, data); });
}

ZMErr AllocatePluginBlock(size_t size, void** block) {
    return WithSuite(
        [&](const auto& suite, auto* record) { return suite.AllocateBlock(record, size, block); });
}

ZMErr FreePluginBlock(void* block) {
    return WithSuite(
        [&](const auto& suite, auto* record) { return suite.FreeBlock(record, block); });
}

void ReleaseFrameworkSuite() {
    if (sFrameworkSuite != nullptr && sBasicSuite != nullptr) {
        sBasicSuite->ReleaseSuite(ZM_LMB_PLUGIN_SUITE_NAME, ZM_LMB_PLUGIN_SUITE_VERSION);
    }
    sFrameworkSuite = nullptr;
}

}  // namespace tolvane
