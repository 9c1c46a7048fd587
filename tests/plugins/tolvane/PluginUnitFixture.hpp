#pragma once


#include <document/Document.hpp>
#include <loader/LoadedPlugin.hpp>
#include <runtime/Runtime.hpp>
#include <suites/BasicSuite.hpp>
#include <suites/UnicodeStringHandle.hpp>

#include <shell/FrameworkCalls.hpp>
#include <shell/PluginDescription.hpp>
#include <shell/SuiteSet.hpp>

#include <gtest/gtest.h>

#include <memory>
#include <string>

namespace zm::test {

// Tolvane's own code, linked into the test, over a real host: the plug-in "Tolvane" with its
// real string table, every suite of its required-suite table acquired into the plug-in's
// suite pointers as the framework does before start-up, and given back after the test.
class PluginUnitFixture : public ::testing::Test {
protected:
    void SetUp() override {
        host::PluginBundle bundle;
        bundle.properties.pluginName = "Tolvane";
        bundle.strings =
            host::StringTable::Read(ZELMORA_TEST_BUNDLE "/Resources/TolvaneStrings.txt");
        host::LoadedPlugin& plugin = runtime.plugins.Adopt(std::move(bundle));
        plugin.framework.description = &tolvane::gPluginDescription;
        tolvane::sBasicSuite = const_cast<ZMBasicSuite*>(&host::HostBasicSuite());
        for (const ZMSuiteDeclaration* row = tolvane::kRequiredSuites;
             row->kind != ZM_SUITE_KIND_END; ++row) {
            ASSERT_EQ(runtime.suites.Acquire(row->name, static_cast<int32_t>(row->version),
                                             row->target),
                      ZM_ERR_NONE)
                << row->name;
        }
    }

    void TearDown() override {
        tolvane::ReleaseFrameworkSuite();
        for (const ZMSuiteDeclaration* row = tolvane::kRequiredSuites;
             row->kind != ZM_SUITE_KIND_END; ++row) {
            if (*row->target != nullptr) {
                EXPECT_EQ(runtime.suites.Release(row->name, static_cast<int32_t>(row->version)),
                          ZM_ERR_NONE);
                *row->target = nullptr;
            }
        }
        tolvane::sBasicSuite = nullptr;
        for (const auto* row : runtime.suites.Outstanding()) {
            ADD_FAILURE() << row->name << " is still held";
        }
    }

    host::document::Document& Open(std::unique_ptr<host::document::Document> document =
                                       std::make_unique<host::document::Document>()) {
        return runtime.documents.Add(std::move(document));
    }

    static std::string Text(ZMUnicodeString string) { return host::ToUtf8(string); }

    host::Runtime runtime;
};

}  // namespace zm::test
