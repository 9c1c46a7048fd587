#include "ostui/ListBox.hpp"

#include <gtest/gtest.h>

namespace {

using ostui::ListBox;
using ostui::ListItem;
using ostui::ListItemPtr;
using ostui::View;
using ostui::ViewPtr;

ListItemPtr Row(float height) {
    ViewPtr content(new View());
    content->SetFrame({0.0f, 0.0f, 100.0f, height});
    return ListItemPtr(new ListItem(content));
}

class ListBoxTest : public ::testing::Test {
protected:
    void SetUp() override {
        list->SetFrame({0.0f, 0.0f, 100.0f, 50.0f});
        list->AppendItem(first);
        list->AppendItem(second);
    }

    boost::intrusive_ptr<ListBox> list{new ListBox("list")};
    ListItemPtr first = Row(20.0f);
    ListItemPtr second = Row(40.0f);
};

TEST_F(ListBoxTest, RowsStackFromTheTopInTheOrderAppended) {
    ASSERT_EQ(list->ItemCount(), 2u);
    EXPECT_EQ(list->Items()[1], second);
    EXPECT_EQ(second->Frame().y, 20.0f);  // below the first row, 20 tall
    EXPECT_EQ(list->ContentHeight(), 60.0f);
}

TEST_F(ListBoxTest, RemovingARowMovesTheRowsBelowUp) {
    EXPECT_TRUE(list->RemoveItem(first.get()));
    EXPECT_FALSE(list->RemoveItem(first.get()));
    EXPECT_EQ(second->Frame().y, 0.0f);
    list->RemoveAllItems();
    EXPECT_TRUE(list->Items().empty());
    EXPECT_TRUE(list->Children().empty());
}

TEST_F(ListBoxTest, AClickOnARowSelectsItAndReportsIt) {
    ListItemPtr reported;
    list->ItemSelected.Connect([&](ListBox&, const ListItemPtr& item) { reported = item; });
    EXPECT_EQ(list->ClickAt({5.0f, 25.0f}), second);  // y 25 lies in the second row (20..60)
    EXPECT_EQ(reported, second);
    EXPECT_EQ(list->FirstSelectedItem(), second);
}

TEST_F(ListBoxTest, ACallbackThatDeselectsLeavesNoRowSelected) {
    list->ItemSelected.Connect(
        [](ListBox& box, const ListItemPtr&) { box.DeselectItem(box.FirstSelectedItem()); });
    list->ClickAt({5.0f, 5.0f});
    EXPECT_EQ(list->FirstSelectedItem(), nullptr);
}

TEST_F(ListBoxTest, AClickBelowTheRowsClearsTheSelectionOnlyWhenTheOptionsSaySo) {
    list->SetFrame({0.0f, 0.0f, 100.0f, 100.0f});  // taller than the 60 of content
    list->SelectItem(first);
    list->SetDeselectAllOnEmptyClick(false);
    list->ClickAt({5.0f, 80.0f});
    EXPECT_EQ(list->FirstSelectedItem(), first);
    list->SetDeselectAllOnEmptyClick(true);
    list->ClickAt({5.0f, 80.0f});
    EXPECT_EQ(list->FirstSelectedItem(), nullptr);
}

TEST_F(ListBoxTest, ArrowKeysSelectOnlyWithKeyboardSelection) {
    list->SetKeyboardSelection(false);
    list->KeyDown(ListBox::Key::Down);
    EXPECT_EQ(list->FirstSelectedItem(), nullptr);
    list->SetKeyboardSelection(true);
    list->KeyDown(ListBox::Key::Down);
    EXPECT_EQ(list->FirstSelectedItem(), first);
    list->KeyDown(ListBox::Key::Down);
    EXPECT_EQ(list->FirstSelectedItem(), second);
}

TEST_F(ListBoxTest, ADisabledListIgnoresClicks) {
    list->SetEnabled(false);
    EXPECT_EQ(list->ClickAt({5.0f, 5.0f}), nullptr);
    EXPECT_EQ(list->FirstSelectedItem(), nullptr);
}

TEST_F(ListBoxTest, ScrollingShowsARectangleWithinTheContent) {
    // The list shows 50 of the 60 content points: the bottom of the second row (y 60) is
    // shown by scrolling 10 down, and no request scrolls further than that.
    list->ScrollToMakeVisible({0.0f, 55.0f, 10.0f, 5.0f});
    EXPECT_EQ(list->ScrollOffset().y, 10.0f);
    list->ScrollToMakeVisible({0.0f, 500.0f, 10.0f, 5.0f});
    EXPECT_EQ(list->ScrollOffset().y, 10.0f);
    list->ScrollToMakeVisible({0.0f, 0.0f, 15.0f, 15.0f});
    EXPECT_EQ(list->ScrollOffset().y, 0.0f);
}

TEST_F(ListBoxTest, ClicksLandInTheScrolledContent) {
    list->ScrollToMakeVisible({0.0f, 55.0f, 10.0f, 5.0f});  // scrolled 10 down
    // The visible y 15 is content y 25, in the second row.
    EXPECT_EQ(list->ClickAt({5.0f, 15.0f}), second);
}

}  // namespace
