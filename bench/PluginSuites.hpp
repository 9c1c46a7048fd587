#pragma once

#include <loader/LoadedPlugin.hpp>
#include <runtime/Runtime.hpp>
#include <suites/BasicSuite.hpp>

#include <shell/FrameworkCalls.hpp>
#include <shell/PluginDescription.hpp>
#include <shell/SuiteSet.hpp>

namespace zm::bench {

// Tolvane's code linked in, its suite pointers filled from a real host as the framework
// fills them.
class PluginSuites {
public:
    PluginSuites() {
        zm::host::PluginBundle bundle;
        bundle.properties.pluginName = "Tolvane";
        runtime_.plugins.Adopt(std::move(bundle)).framework.description =
            &tolvane::gPluginDescription;
        tolvane::sBasicSuite = const_cast<ZMBasicSuite*>(&zm::host::HostBasicSuite());
        for (const ZMSuiteDeclaration* row = tolvane::kRequiredSuites;
             row->kind != ZM_SUITE_KIND_END; ++row) {
            runtime_.suites.Acquire(row->name, static_cast<int32_t>(row->version), row->target);
        }
    }
    ~PluginSuites() {
        tolvane::ReleaseFrameworkSuite();
        for (const ZMSuiteDeclaration* row = tolvane::kRequiredSuites;
             row->kind != ZM_SUITE_KIND_END; ++row) {
            runtime_.suites.Release(row->name, static_cast<int32_t>(row->version));
            *row->target = nullptr;
        }
        tolvane::sBasicSuite = nullptr;
    }

    zm::host::Runtime& Runtime() { return runtime_; }

private:
    zm::host::Runtime runtime_;
};

}  // namespace zm::bench
