#include "plugins/tolvane/PanelSession.hpp"

#include <gtest/gtest.h>

namespace zm::test {
namespace {

using MenuCommandHandlerTest = PanelSession;

TEST_F(MenuCommandHandlerTest, TheMenuItemShowsTheHiddenPanelAndChecksItself) {
    OpenDocument();
    ASSERT_FALSE(Panel()->IsVisible());
    EXPECT_EQ(RunMenuItem(), ZM_ERR_NONE);
    EXPECT_TRUE(Panel()->IsVisible());
    EXPECT_TRUE(MenuItemChecked());
    EXPECT_NE(Shown(), "");
}

TEST_F(MenuCommandHandlerTest, TheMenuItemAgainHidesThePanelAndUnchecksItself) {
    OpenDocument();
    ASSERT_EQ(RunMenuItem(), ZM_ERR_NONE);
    EXPECT_EQ(RunMenuItem(), ZM_ERR_NONE);
    EXPECT_FALSE(Panel()->IsVisible());
    EXPECT_FALSE(MenuItemChecked());
    // A third time shows it again: the item toggles, it does not only show.
    EXPECT_EQ(RunMenuItem(), ZM_ERR_NONE);
    EXPECT_TRUE(Panel()->IsVisible());
    EXPECT_TRUE(MenuItemChecked());
}

TEST_F(MenuCommandHandlerTest, HidingRefreshesTheReportAllTheSame) {
    host::document::Document& document = OpenDocument();
    ASSERT_EQ(RunMenuItem(), ZM_ERR_NONE);
    ASSERT_NE(Shown().find("Color Mode: RGB color\r\n"), std::string::npos) << Shown();
    document.colorModel = host::document::kColorModelCmyk;
    ASSERT_EQ(RunMenuItem(), ZM_ERR_NONE);
    ASSERT_FALSE(Panel()->IsVisible());
    EXPECT_NE(Shown().find("Color Mode: CMYK color\r\n"), std::string::npos) << Shown();
}

TEST_F(MenuCommandHandlerTest, TheMenuItemUsesThePanelMadeAtStartUp) {
    ostzm::ZMUIBasePanel* made = Panel();
    ASSERT_EQ(RunMenuItem(), ZM_ERR_NONE);
    ASSERT_EQ(RunMenuItem(), ZM_ERR_NONE);
    EXPECT_EQ(Panel(), made);
    EXPECT_EQ(ostzm::PanelRegistry::Panels().size(), 1u);
}

TEST(MenuCommandHandlerWithoutPanelTest, TheMenuItemMakesThePanelWhenThereIsNoneAndShowsIt) {
    TestHost host;
    ASSERT_EQ(host.Start(), ZM_ERR_NONE);
    // No start notice yet, so no panel.
    ASSERT_EQ(ostzm::PanelRegistry::FindPanel(host.Tolvane().Ref()), nullptr);
    const auto& globals = *static_cast<const tolvane::Globals*>(host.Tolvane().globals);
    EXPECT_EQ(host.Runtime().plugins.RunMenuItem(globals.menuItem), ZM_ERR_NONE);
    ostzm::ZMUIBasePanel* panel = ostzm::PanelRegistry::FindPanel(host.Tolvane().Ref());
    ASSERT_NE(panel, nullptr);
    EXPECT_TRUE(panel->IsVisible());
    EXPECT_TRUE(host.Runtime().menus.Items().at(0)->checked);
    EXPECT_EQ(host.Stop(), ZM_ERR_NONE);
    // Shut-down deletes it.
    EXPECT_TRUE(ostzm::PanelRegistry::Panels().empty());
}

}  // namespace
}  // namespace zm::test
