#include "plugins/tolvane/PanelSession.hpp"
#include "support/RecordingReporter.hpp"

#include <ostui/ListItem.hpp>

#include <gtest/gtest.h>

#include <string>

namespace zm::test {
namespace {

constexpr int kSelectionOnly = 1;
constexpr int kDocument = 2;
constexpr int kObjects = 3;
constexpr int kFonts = 9;
constexpr int kSave = 13;

using TolvanePanelTest = PanelSession;

TEST_F(TolvanePanelTest, ThePanelIsMadeHiddenWhenTheApplicationHasStarted) {
    EXPECT_FALSE(Panel()->IsVisible());
    EXPECT_EQ(Panel()->Title(), "Document Info");
    EXPECT_FALSE(MenuItemChecked());
    // Made, not shown: the text goes into the list only when a refresh puts it there.
    EXPECT_EQ(Shown(), "");
}

TEST_F(TolvanePanelTest, APanelMadeWithModeZeroOpensOnTheDocumentCategory) {
    EXPECT_EQ(Globals().mode, kDocument);
    // Initialisation marks the item the panel opens on; the check mark waits for a refresh.
    EXPECT_TRUE(Flyout().IsItemDefault(kDocument));
    EXPECT_FALSE(Flyout().IsItemChecked(kDocument));

    ShowWithDocument();
    EXPECT_TRUE(Flyout().IsItemChecked(kDocument));
    // An untitled document has no Name line: the colour mode follows the title's blank line.
    EXPECT_EQ(Shown().rfind("Document:\r\n\r\nColor Mode: RGB color\r\n", 0), 0u) << Shown();
}

TEST_F(TolvanePanelTest, ClickingIntoTheTextNeverLeavesASelectedRow) {
    ShowWithDocument();
    ASSERT_EQ(List().ItemCount(), 1u);  // the whole report is one row
    // The row starts at the top of the list, so a click a few points in hits it.
    ostui::ListItemPtr hit = List().ClickAt({5.0f, 5.0f});
    EXPECT_EQ(hit, List().Items()[0]);
    EXPECT_EQ(List().FirstSelectedItem(), nullptr);
    // Selecting the row directly is let go just the same.
    EXPECT_TRUE(List().SelectItem(List().Items()[0]));
    EXPECT_EQ(List().FirstSelectedItem(), nullptr);
}

TEST_F(TolvanePanelTest, APanelOfZeroWidthShowsNoTextButStillUpdatesTheFlyout) {
    ShowWithDocument();
    ASSERT_NE(Shown(), "");
    // A stale state that only an update of the flyout puts right.
    Flyout().EnableItem(kFonts, false);
    Flyout().CheckItem(kSelectionOnly, Globals().selectionOnly == 0);

    Panel()->Resize(0.0f, 257.0f);
    EXPECT_EQ(Shown(), "");
    EXPECT_TRUE(Flyout().IsItemEnabled(kFonts));
    EXPECT_EQ(Flyout().IsItemChecked(kSelectionOnly), Globals().selectionOnly != 0);
}

TEST_F(TolvanePanelTest, APanelOfZeroHeightShowsNoTextButStillUpdatesTheFlyout) {
    ShowWithDocument();
    ASSERT_NE(Shown(), "");
    Flyout().EnableItem(kSave, false);
    Flyout().CheckItem(kDocument, false);

    Panel()->Resize(230.0f, 0.0f);
    EXPECT_EQ(Shown(), "");
    EXPECT_TRUE(Flyout().IsItemEnabled(kSave));
    EXPECT_TRUE(Flyout().IsItemChecked(kDocument));
}

TEST_F(TolvanePanelTest, ResizingBackShowsTheTextAgain) {
    ShowWithDocument();
    const std::string before = Shown();
    Panel()->Resize(0.0f, 0.0f);
    ASSERT_EQ(Shown(), "");
    Panel()->Resize(230.0f, 257.0f);
    EXPECT_EQ(Shown(), before);
}

TEST_F(TolvanePanelTest, WithNoDocumentEveryFlyoutItemAndTheListAreDisabled) {
    ASSERT_EQ(RunMenuItem(), ZM_ERR_NONE);
    ASSERT_TRUE(Panel()->IsVisible());
    for (int item = 1; item <= 13; ++item) {
        EXPECT_FALSE(Flyout().IsItemEnabled(item)) << "item " << item;
    }
    EXPECT_FALSE(List().IsEnabled());
    // A disabled item cannot be chosen.
    EXPECT_FALSE(Panel()->ChooseFlyoutItem(kFonts));
    EXPECT_EQ(Globals().mode, kDocument);
}

TEST_F(TolvanePanelTest, OpeningADocumentEnablesTheItemsAndTheListAtTheNextRefresh) {
    ASSERT_EQ(RunMenuItem(), ZM_ERR_NONE);
    ASSERT_FALSE(List().IsEnabled());
    OpenDocument();
    ASSERT_EQ(Notify("ZM Document Opened Notifier", &Globals()), ZM_ERR_NONE);
    for (int item = 1; item <= 13; ++item) {
        EXPECT_TRUE(Flyout().IsItemEnabled(item)) << "item " << item;
    }
    EXPECT_TRUE(List().IsEnabled());
}

TEST_F(TolvanePanelTest, ItemOneTogglesSelectionOnlyAndItsCheckMark) {
    ShowWithDocument();
    // Selection Only starts on, as the globals are set up.
    ASSERT_EQ(Globals().selectionOnly, 1);
    EXPECT_TRUE(Flyout().IsItemChecked(kSelectionOnly));

    EXPECT_TRUE(Panel()->ChooseFlyoutItem(kSelectionOnly));
    EXPECT_EQ(Globals().selectionOnly, 0);
    EXPECT_FALSE(Flyout().IsItemChecked(kSelectionOnly));

    EXPECT_TRUE(Panel()->ChooseFlyoutItem(kSelectionOnly));
    EXPECT_EQ(Globals().selectionOnly, 1);
    EXPECT_TRUE(Flyout().IsItemChecked(kSelectionOnly));
}

TEST_F(TolvanePanelTest, ChoosingACategoryMovesTheCheckMark) {
    ShowWithDocument();
    ASSERT_TRUE(Flyout().IsItemChecked(kDocument));

    EXPECT_TRUE(Panel()->ChooseFlyoutItem(kFonts));
    EXPECT_EQ(Globals().mode, kFonts);
    EXPECT_TRUE(Flyout().IsItemChecked(kFonts));
    EXPECT_FALSE(Flyout().IsItemChecked(kDocument));
    // The document draws no text, so the fonts list is empty.
    EXPECT_EQ(Shown(), "Fonts:\r\n\r\nNONE\r\n");

    EXPECT_TRUE(Panel()->ChooseFlyoutItem(kDocument));
    EXPECT_TRUE(Flyout().IsItemChecked(kDocument));
    EXPECT_FALSE(Flyout().IsItemChecked(kFonts));
}

TEST_F(TolvanePanelTest, EveryCategoryItemLeavesExactlyItsOwnItemChecked) {
    ShowWithDocument();
    for (int item = kDocument; item <= 12; ++item) {
        ASSERT_TRUE(Panel()->ChooseFlyoutItem(item));
        for (int other = kDocument; other <= 12; ++other) {
            EXPECT_EQ(Flyout().IsItemChecked(other), other == item)
                << "after " << item << ", item " << other;
        }
    }
}

// The Document category reads the document's settings only: its refresh walks no art, so no
// survey progress is shown. The Objects category walks it.
TEST_F(TolvanePanelTest, OnlyCategoriesOtherThanDocumentWalkTheArt) {
    ShowWithDocument();
    RecordingReporter progress;
    Runtime().progress.SetReporter(&progress);
    Panel()->ChooseFlyoutItem(kDocument);
    EXPECT_TRUE(progress.calls.empty());
    Panel()->ChooseFlyoutItem(kObjects);
    Runtime().progress.SetReporter(nullptr);
    ASSERT_FALSE(progress.calls.empty());
    EXPECT_EQ(progress.calls.front().rfind("begin ", 0), 0u);
    EXPECT_EQ(progress.calls.back(), "end");
}

// Selection Only starts on and nothing is selected: nothing is counted. Off, the document's
// one rectangle counts: 10 x 10 px, closed, 4 points, 40 px around, in the document's unit
// (pixels) with three decimals ("rulerType" unset).
TEST_F(TolvanePanelTest, TheObjectsCategoryCountsWhatTheSelectionSettingTakesIn) {
    ShowWithDocument();
    ASSERT_EQ(Globals().selectionOnly, 1);
    Panel()->ChooseFlyoutItem(kObjects);
    EXPECT_EQ(Shown().rfind("Objects:\r\n\r\nPaths: NONE\r\n", 0), 0u) << Shown();
    Panel()->ChooseFlyoutItem(kSelectionOnly);
    EXPECT_EQ(Shown().rfind("Objects:\r\n\r\nPaths: 1 (0 open, 1 closed, 4 points, length = "
                            "40.000 px)\r\n",
                            0),
              0u)
        << Shown();
}

}  // namespace
}  // namespace zm::test
