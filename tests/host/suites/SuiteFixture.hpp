#pragma once

#include <loader/LoadedPlugin.hpp>
#include <loader/PluginBundle.hpp>
#include <runtime/Runtime.hpp>

#include <zelmora/ZMTypes.h>

#include <gtest/gtest.h>

#include <cstdint>
#include <utility>
#include <vector>

namespace zm::test {

// A fresh host with one in-process plug-in, "Probe", whose code is never loaded, so suite
// entries are called straight through their C tables as a plug-in would call them. Every
// table taken with Acquire is given back after the test, and then no suite may stay held.
class SuiteFixture : public ::testing::Test {
protected:
    void TearDown() override {
        for (const auto& [name, version] : held_) {
            EXPECT_EQ(runtime.suites.Release(name, version), ZM_ERR_NONE) << name;
        }
        held_.clear();
        for (const auto* row : runtime.suites.Outstanding()) {
            ADD_FAILURE() << row->name << " acquired " << row->acquired << ", released "
                          << row->released;
        }
    }

    // A fatal failure when the host has no such table; called from SetUp, that skips the test
    // body instead of letting it call through a null table.
    template <typename Table>
    void Acquire(const char* name, int32_t version, const Table*& table) {
        const void* found = nullptr;
        ASSERT_EQ(runtime.suites.Acquire(name, version, &found), ZM_ERR_NONE) << name;
        held_.emplace_back(name, version);
        table = static_cast<const Table*>(found);
    }

    // Another in-process plug-in, for tests that need two owners.
    host::LoadedPlugin& Adopt(const char* pluginName) {
        host::PluginBundle bundle;
        bundle.properties.pluginName = pluginName;
        return runtime.plugins.Adopt(std::move(bundle));
    }

    host::Runtime runtime;
    host::LoadedPlugin& plugin = Adopt("Probe");
    ZMPluginRef ref = plugin.Ref();

private:
    std::vector<std::pair<const char*, int32_t>> held_;
};

// An address the host never handed out, for entries that must reject foreign handles.
template <typename Handle>
Handle ForeignHandle() {
    static int unrelated = 0;
    return reinterpret_cast<Handle>(&unrelated);
}

}  // namespace zm::test
