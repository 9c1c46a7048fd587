#include "plugins/tolvane/inventory/InventoryFixture.hpp"

#include <inventory/StyleInventory.hpp>

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace {

using Texts = std::vector<std::string>;

class BrushEntryTest : public zm::test::InventoryFixture {
protected:
    void SetUp() override {
        InventoryFixture::SetUp();
        Import("styles.svg");
        globals.mode = tolvane::kModeBrushes;
        ASSERT_EQ(tolvane::sArtStyleParserSuite->NewParser(&parser), ZM_ERR_NONE);
    }

    void TearDown() override {
        tolvane::sArtStyleParserSuite->DisposeParser(parser);
        InventoryFixture::TearDown();
    }

    // CheckForBrush over the parsed style of one art object.
    ZMErr Check(const std::string& id) {
        ZMArtStyleHandle style = nullptr;
        EXPECT_EQ(tolvane::sArtStyleSuite->GetArtStyle(Art(id), &style), ZM_ERR_NONE);
        EXPECT_EQ(tolvane::sArtStyleParserSuite->ParseStyle(parser, style), ZM_ERR_NONE);
        return tolvane::CheckForBrush(parser);
    }

    ZMStyleParser parser = nullptr;
};

// The type's "&" is dropped: "&Art Brush" shows as "Art Brush".
TEST_F(BrushEntryTest, TheEntryIsTheNameAndTheTypeInParentheses) {
    ASSERT_EQ(Check("feathered"), ZM_ERR_NONE);
    EXPECT_EQ(Entries(Lists().brushList), (Texts{"Charcoal - Feather (Art Brush)"}));
    EXPECT_EQ(Record().brushedObjectCount, 1);
}

TEST_F(BrushEntryTest, OnlyTheFirstAmpersandOfTheTypeIsRemoved) {
    Check("confettied");  // "&Scatter Brush"
    Check("penned");      // "Pen && Ink": the second "&" stays
    Check("roped");       // "Pattern Brush" has none
    EXPECT_EQ(Entries(Lists().brushList),
              (Texts{"Confetti (Scatter Brush)", "Pen (Pen & Ink)", "Rope (Pattern Brush)"}));
}

// Two strokes drawn with the same brush: two brushed objects, one entry of count 1.
TEST_F(BrushEntryTest, EveryBrushedStrokeCountsAndEachBrushStandsOnce) {
    Check("feathered");
    Check("featheredAgain");
    EXPECT_EQ(CountedEntries(Lists().brushList), (Texts{"Charcoal - Feather (Art Brush):1"}));
    EXPECT_EQ(Record().brushedObjectCount, 2);
}

// The style of a filled and stroked object has a fill field and a stroke field; only the
// stroke carries the brush, so the object counts once.
TEST_F(BrushEntryTest, FillFieldsAreSkipped) {
    ASSERT_EQ(Check("brushedPaints"), ZM_ERR_NONE);
    EXPECT_EQ(Record().brushedObjectCount, 1);
}

// The host puts a brush on a stroke only; a brush named on art without a stroke draws
// nothing and is not recorded.
TEST_F(BrushEntryTest, ABrushWithoutAStrokeIsNotRecorded) {
    ASSERT_EQ(Check("brushOnFill"), ZM_ERR_NONE);
    EXPECT_EQ(Record().brushedObjectCount, 0);
    EXPECT_TRUE(Entries(Lists().brushList).empty());
}

TEST_F(BrushEntryTest, AStrokeWithoutABrushCountsNothing) {
    ASSERT_EQ(Check("twoModels"), ZM_ERR_NONE);
    EXPECT_EQ(Record().brushedObjectCount, 0);
}

// With the panel showing "Fonts:", brushed objects are still counted but not listed.
TEST_F(BrushEntryTest, OutsideTheBrushesCategoryBrushesAreCountedButNotListed) {
    globals.mode = tolvane::kModeFonts;
    ASSERT_EQ(Check("feathered"), ZM_ERR_NONE);
    EXPECT_EQ(Record().brushedObjectCount, 1);
    EXPECT_TRUE(Entries(Lists().brushList).empty());
}

TEST_F(BrushEntryTest, SavingListsBrushesInAnyCategory) {
    globals.mode = tolvane::kModeFonts;
    globals.saving = 1;
    ASSERT_EQ(Check("feathered"), ZM_ERR_NONE);
    EXPECT_EQ(Entries(Lists().brushList), (Texts{"Charcoal - Feather (Art Brush)"}));
}

// The styles check finds brushes too: a brushed object with a graphic style.
TEST_F(BrushEntryTest, TheStyleCheckLooksForBrushes) {
    tolvane::PaintKind marks = 0;
    ASSERT_EQ(tolvane::CheckStyle(Art("brushedStyled"), ZM_ART_PATH, marks, 0), ZM_ERR_NONE);
    EXPECT_EQ(Entries(Lists().brushList), (Texts{"Confetti (Scatter Brush)"}));
    EXPECT_EQ(Entries(Lists().graphicStyleList), (Texts{"Outline"}));
    EXPECT_EQ(Record().brushedObjectCount, 1);
}

TEST_F(BrushEntryTest, AFailingNameQueryEndsWithTheHostsCodeAfterCounting) {
    runtime.faults.FailCall(ZM_BRUSH_MGR_SUITE_NAME, 3, ZM_ERR_INTERNAL);
    EXPECT_EQ(Check("feathered"), ZM_ERR_INTERNAL);
    EXPECT_EQ(Record().brushedObjectCount, 1);
    EXPECT_TRUE(Entries(Lists().brushList).empty());
}

// The alert shows id -1 and the place; the result is out of memory.
TEST_F(BrushEntryTest, ABrushTheListCannotTakeShowsTheAlertAndGivesOutOfMemory) {
    runtime.faults.FailAllocation(1);
    EXPECT_EQ(Check("feathered"), ZM_ERR_NO_MEMORY);
    EXPECT_EQ(Record().brushedObjectCount, 1);
    EXPECT_TRUE(Entries(Lists().brushList).empty());
    EXPECT_EQ(AlertTexts(), (Texts{OutOfMemoryAlert("ID =   CheckForBrush:LinkStrAdd")}));
}

}  // namespace
