#include "plugins/tolvane/inventory/InventoryFixture.hpp"

#include <inventory/ColorInventory.hpp>

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace {

using Texts = std::vector<std::string>;
using tolvane::PaintKind;

// Entries of the art suite the pattern walk uses.
constexpr int32_t kGetArtType = 0;
constexpr int32_t kGetArtFirstChild = 2;
constexpr int32_t kGetArtSibling = 3;

class PatternEntryTest : public zm::test::InventoryFixture {
protected:
    void SetUp() override {
        InventoryFixture::SetUp();
        Import("patterns.svg");
    }

    ZMErr Add(const std::string& id) { return tolvane::AddPattern(FillOf(id).c.pattern, marks, 0); }

    PaintKind marks = 0;
};

TEST_F(PatternEntryTest, ThePatternIsListedByItsNameAlone) {
    ASSERT_EQ(Add("dotsArt"), ZM_ERR_NONE);
    EXPECT_EQ(Entries(Lists().patternList), (Texts{"Dots"}));
}

TEST_F(PatternEntryTest, PatternsAreListedInOrderOfTheirNames) {
    Add("nestedArt");
    Add("letteringArt");
    Add("dotsArt");
    EXPECT_EQ(Entries(Lists().patternList), (Texts{"Dots", "Lettering", "Nested"}));
}

// Two patterns named "Dots": one entry, count 1, and the second tile is never walked: with
// the child query failing, the second offer still answers 0.
TEST_F(PatternEntryTest, APatternIsExaminedOnlyTheFirstTimeItsNameIsMet) {
    ASSERT_EQ(Add("dotsArt"), ZM_ERR_NONE);
    runtime.faults.FailCall(ZM_ART_SUITE_NAME, kGetArtFirstChild, ZM_ERR_INTERNAL);
    EXPECT_EQ(Add("dotsAgainArt"), ZM_ERR_NONE);
    EXPECT_EQ(CountedEntries(Lists().patternList), (Texts{"Dots:1"}));
}

// A new pattern's tile is walked after it is listed; the entry stays when the walk fails.
TEST_F(PatternEntryTest, ANewPatternsTileIsWalkedAfterItIsListed) {
    runtime.faults.FailCall(ZM_ART_SUITE_NAME, kGetArtFirstChild, ZM_ERR_INTERNAL);
    EXPECT_EQ(Add("letteringArt"), ZM_ERR_INTERNAL);
    EXPECT_EQ(Entries(Lists().patternList), (Texts{"Lettering"}));
}

TEST_F(PatternEntryTest, TheWalkAnswersWithTheLastSiblingQuerysCode) {
    runtime.faults.FailCall(ZM_ART_SUITE_NAME, kGetArtSibling, ZM_ERR_INTERNAL);
    EXPECT_EQ(Add("letteringArt"), ZM_ERR_INTERNAL);
}

// Every child at the top of the tile has its type asked, the text frame included.
TEST_F(PatternEntryTest, EveryTopLevelChildHasItsTypeAsked) {
    runtime.faults.FailCall(ZM_ART_SUITE_NAME, kGetArtType, ZM_ERR_INTERNAL);
    EXPECT_EQ(Add("dotsArt"), ZM_ERR_INTERNAL);
}

// The circle and the rect at the top of the tile are passed over; the text frame between
// them is surveyed: one point frame, its font, and its black (RGB) fill, marked and counted.
TEST_F(PatternEntryTest, ATextFrameAtTheTopOfTheTileIsSurveyed) {
    EXPECT_EQ(Add("letteringArt"), ZM_ERR_NONE);
    EXPECT_EQ(Entries(Lists().fontList), (Texts{"DejaVuSans (TrueType)"}));
    EXPECT_EQ(Record().typeObjectCount, 1);
    EXPECT_EQ(Record().pointTypeCount, 1);
    EXPECT_EQ(marks, tolvane::kPaintRgb);
    EXPECT_EQ(ModelCounters(), (std::vector<int32_t>{1, 0, 0, 0, 0, 0}));
}

// The tile's text sits in a group: nothing of it is surveyed.
TEST_F(PatternEntryTest, TextInsideAGroupOfTheTileIsNotSurveyed) {
    EXPECT_EQ(Add("nestedArt"), ZM_ERR_NONE);
    EXPECT_TRUE(Entries(Lists().fontList).empty());
    EXPECT_EQ(Record().typeObjectCount, 0);
    EXPECT_EQ(marks, 0u);
}

// Inside an opacity mask the text's black marks nothing; its font is listed all the same.
TEST_F(PatternEntryTest, TheTilesTextIsSurveyedWithTheCallersMaskFlag) {
    EXPECT_EQ(tolvane::AddPattern(FillOf("letteringArt").c.pattern, marks, 1), ZM_ERR_NONE);
    EXPECT_EQ(marks, 0u);
    EXPECT_EQ(Entries(Lists().fontList), (Texts{"DejaVuSans (TrueType)"}));
}

TEST_F(PatternEntryTest, AFailingNameQueryEndsWithTheHostsCodeAndListsNothing) {
    runtime.faults.FailCall(ZM_PATTERN_SUITE_NAME, 2, ZM_ERR_INTERNAL);
    EXPECT_EQ(Add("dotsArt"), ZM_ERR_INTERNAL);
    EXPECT_TRUE(Entries(Lists().patternList).empty());
}

// The pattern alert carries no id: the detail line is the place alone.
TEST_F(PatternEntryTest, APatternTheListCannotTakeShowsTheAlertAndGivesOutOfMemory) {
    runtime.faults.FailAllocation(1);
    EXPECT_EQ(Add("letteringArt"), ZM_ERR_NO_MEMORY);
    EXPECT_TRUE(Entries(Lists().patternList).empty());
    EXPECT_EQ(AlertTexts(), (Texts{OutOfMemoryAlert("AddPattern:LinkStrAdd")}));
}

}  // namespace
