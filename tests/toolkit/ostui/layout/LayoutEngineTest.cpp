#include "ostui/layout/LayoutEngine.hpp"

#include "ostui/ListBox.hpp"
#include "ostui/ScrollBar.hpp"
#include "ostui/layout/LayoutBuilder.hpp"
#include "ostui/layout/LayoutParser.hpp"

#include <gtest/gtest.h>

#include <string>

namespace {

using ostcore::Rect;

const std::string kTolvaneLayout =
    std::string(ZELMORA_TEST_BUNDLE) + "/Resources/TolvanePanel16002.eve";

TEST(LayoutEngineTest, TheTolvaneListFillsThePanelAboveTheGripperGap) {
    ostui::ViewPtr root = ostui::BuildLayout(ostui::ReadLayoutFile(kTolvaneLayout), {});
    ostui::ArrangeLayout(*root, 230.0f, 257.0f);
    EXPECT_EQ(root->Id(), "TolvanePanel");
    EXPECT_EQ(root->FindChild("TolvaneSubView")->Frame(), (Rect{0.0f, 0.0f, 230.0f, 257.0f}));
    auto list = root->FindChildAs<ostui::ListBox>("TolvaneList");
    ASSERT_TRUE(list);
    EXPECT_FALSE(list->TakesFocus());
    EXPECT_EQ(list->FontSize(), ostui::ThemeFontSize::Small);
    // The gripper gap keeps 15 points (a scroll bar's width) at the bottom: 257 - 15 = 242.
    EXPECT_EQ(list->Frame(), (Rect{0.0f, 0.0f, 230.0f, 257.0f - ostui::kVerticalScrollBarWidth}));
}

TEST(LayoutEngineTest, FillersShareWhatFixedViewsLeaveAlongTheAxis) {
    ostui::ViewPtr root = ostui::BuildLayout(
        ostui::ParseLayout(R"(<layout name="L">
            <subview id="row" orientation="horizontal" margin="5" fill="both">
              <list id="a" width="40" fill="vertical"/>
              <list id="b" fill="both"/>
              <list id="c" fill="both"/>
            </subview></layout>)",
                           "test"),
        {});
    ostui::ArrangeLayout(*root, 150.0f, 60.0f);
    // Inside a 5-point margin the row is 140 x 50; "a" keeps 40, "b" and "c" share 100.
    EXPECT_EQ(root->FindChild("a")->Frame(), (Rect{5.0f, 5.0f, 40.0f, 50.0f}));
    EXPECT_EQ(root->FindChild("b")->Frame(), (Rect{45.0f, 5.0f, 50.0f, 50.0f}));
    EXPECT_EQ(root->FindChild("c")->Frame(), (Rect{95.0f, 5.0f, 50.0f, 50.0f}));
}

}  // namespace
