#include <gtest/gtest.h>
#include <zelmora/HVPluginsSuite.h>
#include <zelmora/ZMArtSuite.h>
#include <zelmora/ZMPluginGroupSuite.h>

#include <memory>
#include <string>

#include "host/suites/SuiteFixture.hpp"
#include "support/DocumentBuilder.hpp"

namespace zm::host {
namespace {

using document::Art;
using document::ArtType;

ZMArtHandle H(const Art& art) { return reinterpret_cast<ZMArtHandle>(const_cast<Art*>(&art)); }

// Two blends, a plug-in group made by the loaded plug-in "Probe", and a plain group.
class PluginGroupSuiteTest : public zm::test::SuiteFixture {
protected:
    void SetUp() override {
        Acquire(ZM_PLUGIN_GROUP_SUITE_NAME, ZM_PLUGIN_GROUP_SUITE_VERSION, groups);
        Acquire(ZM_HV_PLUGINS_SUITE_NAME, ZM_HV_PLUGINS_SUITE_VERSION, plugins);
        auto built = std::make_unique<document::Document>();
        Art* layer = zm::test::AddLayer(*built, "Layer 1").root.get();
        blend = &MakeGroup(*layer, "Quorvel Path Blends");
        otherBlend = &MakeGroup(*layer, "Quorvel Path Blends");
        probeGroup = &MakeGroup(*layer, "Probe");
        plain = &zm::test::AddArt(*layer, ArtType::Group, "plain");
        runtime.documents.Add(std::move(built));
    }

    static Art& MakeGroup(Art& layer, const std::string& pluginName) {
        Art& group = zm::test::AddArt(layer, ArtType::PluginGroup);
        group.pluginName = pluginName;
        zm::test::AddRectangle(group.ResultGroup(), 0, 0, 1, 1);
        return group;
    }

    ZMPluginGroupClass ClassOf(const Art& art) {
        ZMPluginGroupClass groupClass = nullptr;
        EXPECT_EQ(groups->GetPluginArtClass(H(art), &groupClass), ZM_ERR_NONE);
        return groupClass;
    }

    ZMPluginRef RefOf(const Art& art) {
        ZMPluginRef plugin = nullptr;
        EXPECT_EQ(groups->GetPluginClassPluginRef(ClassOf(art), &plugin), ZM_ERR_NONE);
        return plugin;
    }

    std::string NameOf(ZMPluginRef plugin) {
        const char* name = nullptr;
        EXPECT_EQ(plugins->GetPluginName(plugin, &name), ZM_ERR_NONE);
        return name == nullptr ? "(null)" : name;
    }

    int32_t CountPlugins() {
        int32_t count = -1;
        EXPECT_EQ(plugins->CountPlugins(&count), ZM_ERR_NONE);
        return count;
    }

    const ZMPluginGroupSuite* groups = nullptr;
    const HVPluginsSuite* plugins = nullptr;
    Art* blend = nullptr;
    Art* otherBlend = nullptr;
    Art* probeGroup = nullptr;
    Art* plain = nullptr;
};

TEST_F(PluginGroupSuiteTest, AGroupsPluginIsNamedByThePluginsSuite) {
    EXPECT_EQ(NameOf(RefOf(*blend)), "Quorvel Path Blends");
}

TEST_F(PluginGroupSuiteTest, TheClassNamesItsPlugin) {
    const char* name = nullptr;
    ASSERT_EQ(groups->GetPluginClassName(ClassOf(*blend), &name), ZM_ERR_NONE);
    EXPECT_STREQ(name, "Quorvel Path Blends");
}

TEST_F(PluginGroupSuiteTest, GroupsOfOnePluginShareItsClassAndReference) {
    EXPECT_EQ(ClassOf(*blend), ClassOf(*otherBlend));
    EXPECT_EQ(RefOf(*blend), RefOf(*otherBlend));
    EXPECT_NE(ClassOf(*blend), ClassOf(*probeGroup));
}

TEST_F(PluginGroupSuiteTest, AGroupOfALoadedPluginGivesThatPluginsReference) {
    EXPECT_EQ(RefOf(*probeGroup), ref);  // the fixture's adopted plug-in "Probe"
}

TEST_F(PluginGroupSuiteTest, TheResultGroupHoldsWhatThePluginMade) {
    ZMArtHandle result = nullptr;
    ASSERT_EQ(groups->GetPluginArtResultGroup(H(*blend), &result), ZM_ERR_NONE);
    EXPECT_EQ(result, H(blend->ResultGroup()));
}

TEST_F(PluginGroupSuiteTest, ArtThatIsNoPluginGroupIsOfTheWrongType) {
    ZMPluginGroupClass groupClass = nullptr;
    ZMArtHandle result = nullptr;
    EXPECT_EQ(groups->GetPluginArtClass(H(*plain), &groupClass), ZM_ERR_WRONG_ART_TYPE);
    EXPECT_EQ(groups->GetPluginArtResultGroup(H(*plain), &result), ZM_ERR_WRONG_ART_TYPE);
}

TEST_F(PluginGroupSuiteTest, ForeignHandlesAreBadArguments) {
    ZMPluginGroupClass groupClass = nullptr;
    ZMPluginRef plugin = nullptr;
    const char* name = nullptr;
    EXPECT_EQ(groups->GetPluginArtClass(nullptr, &groupClass), ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(
        groups->GetPluginClassPluginRef(zm::test::ForeignHandle<ZMPluginGroupClass>(), &plugin),
        ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(groups->GetPluginClassName(nullptr, &name), ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(plugins->GetPluginName(zm::test::ForeignHandle<ZMPluginRef>(), &name),
              ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(plugins->GetPluginName(ref, nullptr), ZM_ERR_BAD_ARGUMENT);
}

TEST_F(PluginGroupSuiteTest, WithoutADocumentArtEntriesAnswerNoDocument) {
    ZMArtHandle handle = H(*blend);
    runtime.documents.CloseCurrent();
    ZMPluginGroupClass groupClass = nullptr;
    ZMArtHandle result = nullptr;
    EXPECT_EQ(groups->GetPluginArtClass(handle, &groupClass), ZM_ERR_NO_DOCUMENT);
    EXPECT_EQ(groups->GetPluginArtResultGroup(handle, &result), ZM_ERR_NO_DOCUMENT);
}

TEST_F(PluginGroupSuiteTest, ALoadedPluginIsNamedByItsReference) {
    EXPECT_EQ(NameOf(ref), "Probe");
}

TEST_F(PluginGroupSuiteTest, PluginsNamedByDocumentsJoinTheLoadedOnesOnceMet) {
    EXPECT_EQ(CountPlugins(), 1);  // "Probe" only: no document's plug-in name met yet
    RefOf(*blend);
    RefOf(*otherBlend);
    RefOf(*probeGroup);  // loaded already: not counted twice
    ASSERT_EQ(CountPlugins(), 2);
    ZMPluginRef first = nullptr;
    ZMPluginRef second = nullptr;
    ASSERT_EQ(plugins->GetNthPlugin(0, &first), ZM_ERR_NONE);
    ASSERT_EQ(plugins->GetNthPlugin(1, &second), ZM_ERR_NONE);
    EXPECT_EQ(NameOf(first), "Probe");
    EXPECT_EQ(NameOf(second), "Quorvel Path Blends");
    ZMPluginRef none = nullptr;
    EXPECT_EQ(plugins->GetNthPlugin(2, &none), ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(plugins->GetNthPlugin(-1, &none), ZM_ERR_BAD_ARGUMENT);
}

TEST_F(PluginGroupSuiteTest, APluginNamedByADocumentStaysKnownAfterTheDocumentCloses) {
    ZMPluginRef plugin = RefOf(*blend);
    runtime.documents.CloseCurrent();
    EXPECT_EQ(NameOf(plugin), "Quorvel Path Blends");
}

}  // namespace
}  // namespace zm::host
