#include "ostzm/ZMUIBasePanel.hpp"

#include "ostui/ListBox.hpp"
#include "ostui/ResourceError.hpp"
#include "ostzm/PluginBundleRegistry.hpp"
#include "toolkit/ostzm/TestBundle.hpp"

#include <gtest/gtest.h>

#include <stdexcept>
#include <string>
#include <vector>

namespace {

using ostcore::Rect;
using ostzm::BasePanelCreationOptions;
using ostzm::PluginBundleRegistry;
using ostzm::ZMUIBasePanel;

BasePanelCreationOptions TestOptions() {
    BasePanelCreationOptions options;
    options.titleKey = "$$$/Test/Title=Document Info";
    options.defaultTitle = "Document Info";
    options.initialWidth = 230.0f;
    options.initialHeight = 257.0f;
    return options;
}

// Records what reaches the overrides.
class RecordingPanel : public ZMUIBasePanel {
public:
    explicit RecordingPanel(ZMPluginRef plugin) : ZMUIBasePanel(plugin, 16002, TestOptions(), 0) {}

    void OnFlyoutMenuCommand(int id) override { events.push_back("command " + std::to_string(id)); }
    void UpdateFlyoutMenu() override {
        events.push_back("update");
        GetFlyoutMenu()->EnableItem(13, false);
    }
    void OnResize() override {
        ZMUIBasePanel::OnResize();
        listHeightSeen = GetView()->FindChild("TolvaneList")->Frame().height;
        events.push_back("resize");
    }
    void OnVisibilityChanged(bool shown) override {
        events.push_back(shown ? "shown" : "hidden");
    }

    std::vector<std::string> events;
    float listHeightSeen = -1.0f;
};

class ZMUIBasePanelTest : public ::testing::Test {
protected:
    void SetUp() override {
        PluginBundleRegistry::Register(bundle.Ref(), bundle.Folder(), [](const std::string& key) {
            return key == "$$$/Test/Title=Document Info" ? std::string("Dokumentinfo")
                                                          : ostcore::DefaultText(key);
        });
    }
    void TearDown() override { PluginBundleRegistry::Unregister(bundle.Ref()); }

    ostzm::test::TestBundle bundle;
};

TEST_F(ZMUIBasePanelTest, APanelIsBuiltFromItsLayoutAndMenuResources) {
    RecordingPanel panel(bundle.Ref());
    EXPECT_EQ(panel.GetView()->Id(), "TolvanePanel");
    auto list = panel.GetView()->FindChildAs<ostui::ListBox>("TolvaneList");
    ASSERT_TRUE(list);
    // The initial 230 x 257, less the 15-point gripper gap below the list.
    EXPECT_EQ(list->Frame(), (Rect{0.0f, 0.0f, 230.0f, 242.0f}));
    ASSERT_TRUE(panel.GetFlyoutMenu());
    EXPECT_EQ(panel.GetFlyoutMenu()->ItemIds().size(), 13u);
    EXPECT_EQ(panel.GetFlyoutMenu()->ItemText(13), "&Save...");
    EXPECT_EQ(panel.Title(), "Dokumentinfo");  // through the plug-in's localizer
    EXPECT_FALSE(panel.IsVisible());
    EXPECT_TRUE(panel.events.empty());  // construction calls no override
}

TEST_F(ZMUIBasePanelTest, ShowingAndHidingReachTheOverrideOnlyOnAChange) {
    RecordingPanel panel(bundle.Ref());
    panel.Show();
    panel.Show();
    EXPECT_TRUE(panel.IsVisible());
    panel.Hide();
    panel.Hide();
    EXPECT_EQ(panel.events, (std::vector<std::string>{"shown", "hidden"}));
}

TEST_F(ZMUIBasePanelTest, AResizeLaysTheViewsOutBeforeTheOverrideReadsThem) {
    RecordingPanel panel(bundle.Ref());
    panel.Resize(300.0f, 100.0f);
    EXPECT_EQ(panel.events, std::vector<std::string>{"resize"});
    EXPECT_EQ(panel.listHeightSeen, 85.0f);  // 100 less the 15-point gripper gap
    EXPECT_EQ(panel.GetView()->FindChild("TolvaneList")->Frame().width, 300.0f);
}

TEST_F(ZMUIBasePanelTest, ChoosingAFlyoutItemUpdatesTheMenuThenRunsTheCommandIfEnabled) {
    RecordingPanel panel(bundle.Ref());
    EXPECT_TRUE(panel.ChooseFlyoutItem(3));
    EXPECT_FALSE(panel.ChooseFlyoutItem(13));  // the update disables it
    EXPECT_EQ(panel.events, (std::vector<std::string>{"update", "command 3", "update"}));
}

TEST_F(ZMUIBasePanelTest, APlugInTheToolkitDoesNotKnowGetsNoPanel) {
    int other = 0;
    EXPECT_THROW(RecordingPanel(reinterpret_cast<ZMPluginRef>(&other)), std::runtime_error);
}

TEST(ZMUIBasePanelResourcesTest, AMissingLayoutIsAResourceError) {
    ostzm::test::TestBundle bundle("16002.mnu TolvanePanel.mnu\n");
    PluginBundleRegistry::Register(bundle.Ref(), bundle.Folder(), {});
    EXPECT_THROW(ZMUIBasePanel(bundle.Ref(), 16002, TestOptions(), 0), ostui::ResourceError);
    PluginBundleRegistry::Unregister(bundle.Ref());
}

TEST(ZMUIBasePanelResourcesTest, WithoutAMenuResourceThePanelHasNoFlyout) {
    ostzm::test::TestBundle bundle("16002.eve TolvanePanel16002.eve\n");
    PluginBundleRegistry::Register(bundle.Ref(), bundle.Folder(), {});
    ZMUIBasePanel panel(bundle.Ref(), 16002, TestOptions(), 0);
    EXPECT_FALSE(panel.GetFlyoutMenu());
    EXPECT_FALSE(panel.ChooseFlyoutItem(1));
    EXPECT_EQ(panel.Title(), "Document Info");  // no localizer: the key's default text
    PluginBundleRegistry::Unregister(bundle.Ref());
}

TEST(PluginBundleRegistryTest, AMalformedResourceMapIsRefused) {
    ostzm::test::TestBundle bundle("16002.eve\n");
    EXPECT_THROW(PluginBundleRegistry::Register(bundle.Ref(), bundle.Folder(), {}),
                 std::runtime_error);
    EXPECT_FALSE(PluginBundleRegistry::Find(bundle.Ref()));
}

TEST(PluginBundleRegistryTest, ResourcesResolveToFilesInTheResourcesFolder) {
    ostzm::test::TestBundle bundle;
    PluginBundleRegistry::Register(bundle.Ref(), bundle.Folder(), {});
    EXPECT_EQ(PluginBundleRegistry::ResourceFile(bundle.Ref(), "16002.mnu"),
              bundle.Folder() + "/Resources/TolvanePanel.mnu");
    EXPECT_EQ(PluginBundleRegistry::ResourceFile(bundle.Ref(), "16003.mnu"), "");
    PluginBundleRegistry::Unregister(bundle.Ref());
    EXPECT_EQ(PluginBundleRegistry::ResourceFile(bundle.Ref(), "16002.mnu"), "");
}

}  // namespace
