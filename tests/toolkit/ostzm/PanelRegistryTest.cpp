#include "ostzm/PanelRegistry.hpp"

#include "ostui/ListBox.hpp"
#include "ostui/StaticText.hpp"
#include "ostzm/PluginBundleRegistry.hpp"
#include "ostzm/ZMUIBasePanel.hpp"
#include "toolkit/ostzm/TestBundle.hpp"

#include <gtest/gtest.h>

#include <memory>

namespace {

using ostzm::PanelRegistry;
using ostzm::PluginBundleRegistry;
using ostzm::ZMUIBasePanel;

class PanelRegistryTest : public ::testing::Test {
protected:
    void SetUp() override { PluginBundleRegistry::Register(bundle.Ref(), bundle.Folder(), {}); }
    void TearDown() override { PluginBundleRegistry::Unregister(bundle.Ref()); }

    std::unique_ptr<ZMUIBasePanel> MakePanel() {
        ostzm::BasePanelCreationOptions options;
        options.initialWidth = 230.0f;
        options.initialHeight = 257.0f;
        return std::make_unique<ZMUIBasePanel>(bundle.Ref(), 16002, options, 0);
    }

    ostzm::test::TestBundle bundle;
};

TEST_F(PanelRegistryTest, APanelIsListedWhileItLives) {
    EXPECT_EQ(PanelRegistry::FindPanel(bundle.Ref()), nullptr);
    std::unique_ptr<ZMUIBasePanel> panel = MakePanel();
    EXPECT_EQ(PanelRegistry::FindPanel(bundle.Ref()), panel.get());
    EXPECT_TRUE(PanelRegistry::IsLive(panel.get()));
    EXPECT_EQ(PanelRegistry::Panels().size(), 1u);
    ZMUIBasePanel* gone = panel.get();
    panel.reset();
    EXPECT_FALSE(PanelRegistry::IsLive(gone));
    EXPECT_EQ(PanelRegistry::FindPanel(bundle.Ref()), nullptr);
}

TEST_F(PanelRegistryTest, TheShownTextIsTheTextOfTheListsRows) {
    std::unique_ptr<ZMUIBasePanel> panel = MakePanel();
    EXPECT_EQ(PanelRegistry::ShownText(*panel), "");
    auto list = panel->GetView()->FindChildAs<ostui::ListBox>("TolvaneList");
    ASSERT_TRUE(list);
    ostui::ThemeFont font = panel->GetThemeFont();
    for (const char* text : {"Document:\r\n", "Name: poster.svg\r\n"}) {
        ostui::ViewPtr shown(new ostui::StaticText("", text, font));
        shown->SetFrame({0.0f, 0.0f, 100.0f, 20.0f});
        list->AppendItem(ostui::ListItemPtr(new ostui::ListItem(shown)));
    }
    EXPECT_EQ(PanelRegistry::ShownText(*panel), "Document:\r\nName: poster.svg\r\n");
    list->RemoveAllItems();
    EXPECT_EQ(PanelRegistry::ShownText(*panel), "");
}

}  // namespace
