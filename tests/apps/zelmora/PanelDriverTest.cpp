#include "PanelDriver.hpp"

#include "support/TestHost.hpp"

#include <importers/svg/SvgImporter.hpp>

#include <ostui/FlyoutMenu.hpp>
#include <ostzm/PanelRegistry.hpp>
#include <ostzm/ZMUIBasePanel.hpp>

#include <gtest/gtest.h>

namespace zelmora {
namespace {

constexpr int kSelectionOnlyItem = 1;
constexpr int kDocumentItem = 2;
constexpr int kFontsItem = 9;

class PanelDriverTest : public ::testing::Test {
protected:
    void SetUp() override {
        ASSERT_EQ(host.Start(), ZM_ERR_NONE);
        ASSERT_EQ(host.Runtime().plugins.Notify("ZM Application Started Notifier", nullptr),
                  ZM_ERR_NONE);
        host.Runtime().documents.Add(zm::host::ImportSvgText(
            "<svg xmlns=\"http://www.w3.org/2000/svg\" width=\"100\" height=\"50\">"
            "<rect id=\"a\" width=\"10\" height=\"10\"/></svg>",
            {}));
        driver.ShowPanel();
    }

    void TearDown() override { EXPECT_EQ(host.Stop(), ZM_ERR_NONE); }

    ostui::FlyoutMenu& Flyout() {
        return *ostzm::PanelRegistry::FindPanel(host.Tolvane().Ref())->GetFlyoutMenu();
    }

    zm::test::TestHost host;
    PanelDriver driver{host.Runtime(), host.Tolvane()};
};

TEST_F(PanelDriverTest, ShowingThePanelShowsItThroughItsMenuItem) {
    EXPECT_TRUE(ostzm::PanelRegistry::FindPanel(host.Tolvane().Ref())->IsVisible());
    EXPECT_TRUE(host.Runtime().menus.Items().at(0)->checked);
}

// What --select asks for: Selection Only on, and its flyout item checked.
TEST_F(PanelDriverTest, SelectionOnlyOnLeavesItsItemChecked) {
    driver.SetSelectionOnly(false);
    ASSERT_FALSE(Flyout().IsItemChecked(kSelectionOnlyItem));
    driver.SetSelectionOnly(true);
    EXPECT_TRUE(Flyout().IsItemChecked(kSelectionOnlyItem));
}

// Without --select: off, whatever the plug-in started with (it starts with it on).
TEST_F(PanelDriverTest, SelectionOnlyOffLeavesItsItemUnchecked) {
    ASSERT_TRUE(Flyout().IsItemChecked(kSelectionOnlyItem));
    driver.SetSelectionOnly(false);
    EXPECT_FALSE(Flyout().IsItemChecked(kSelectionOnlyItem));
    // Asking twice for the same state does not toggle it back.
    driver.SetSelectionOnly(false);
    EXPECT_FALSE(Flyout().IsItemChecked(kSelectionOnlyItem));
}

TEST_F(PanelDriverTest, ChoosingACategoryShowsItsText) {
    driver.ChooseCategory(kFontsItem);
    EXPECT_TRUE(Flyout().IsItemChecked(kFontsItem));
    EXPECT_FALSE(Flyout().IsItemChecked(kDocumentItem));
    EXPECT_EQ(driver.ShownText(), "Fonts:\r\n\r\nNONE\r\n");  // the rectangle holds no text
}

}  // namespace
}  // namespace zelmora
