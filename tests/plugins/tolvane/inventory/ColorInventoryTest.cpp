#include "plugins/tolvane/inventory/InventoryFixture.hpp"

#include <inventory/ColorInventory.hpp>

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace {

using Texts = std::vector<std::string>;
using Counters = std::vector<int32_t>;
using tolvane::PaintKind;

class ColorInventoryTest : public zm::test::InventoryFixture {
protected:
    void SetUp() override {
        InventoryFixture::SetUp();
        Import("colors.svg");
    }

    // The marks of one paint, classified into a fresh accumulator.
    PaintKind Classify(const ZMColor& color, int32_t skipSolid = 0) {
        PaintKind marks = 0;
        EXPECT_EQ(tolvane::AddCustomColor(color, marks, skipSolid), ZM_ERR_NONE);
        return marks;
    }

    // Every fill of the document's art and the one stroke, into one accumulator.
    PaintKind ClassifyEverything() {
        PaintKind marks = 0;
        for (const char* id :
             {"rgb", "cmyk", "gray", "spotCmyk", "spotCmykAgain", "spotRgb", "spotLab",
              "processCmyk", "processRgb", "processLab", "patterned", "graded"}) {
            EXPECT_EQ(tolvane::AddCustomColor(FillOf(id), marks, 0), ZM_ERR_NONE) << id;
        }
        EXPECT_EQ(tolvane::AddCustomColor(StrokeOf("spotCmyk"), marks, 0), ZM_ERR_NONE);
        return marks;
    }
};

TEST_F(ColorInventoryTest, PlainColorsMarkTheirModelAndListNothing) {
    EXPECT_EQ(Classify(FillOf("rgb")), tolvane::kPaintRgb);
    EXPECT_EQ(Classify(FillOf("cmyk")), tolvane::kPaintCmyk);
    EXPECT_EQ(Classify(FillOf("gray")), tolvane::kPaintGray);
    EXPECT_TRUE(Entries(Lists().spotColorList).empty());
}

TEST_F(ColorInventoryTest, NoPaintMarksNothing) {
    EXPECT_EQ(FillOf("unpainted").kind, ZM_COLOR_NONE);
    EXPECT_EQ(Classify(FillOf("unpainted")), 0u);
}

TEST_F(ColorInventoryTest, ClassifyingOnlyMarksAndLeavesTheCountersToTheCaller) {
    Classify(FillOf("rgb"));
    EXPECT_EQ(ModelCounters(), (Counters{0, 0, 0, 0, 0, 0}));
}

// The swatch's name, a blank and its model word.
TEST_F(ColorInventoryTest, ASpotSwatchIsMarkedAndListedInTheSpotColorCategory) {
    globals.mode = tolvane::kModeSpotColors;
    EXPECT_EQ(Classify(FillOf("spotCmyk")), tolvane::kPaintSpot);
    EXPECT_EQ(Entries(Lists().spotColorList), (Texts{"Warm Red (CMYK)"}));
}

TEST_F(ColorInventoryTest, ASpotSwatchOutsideTheSpotColorCategoryIsMarkedButNotListed) {
    EXPECT_EQ(Classify(FillOf("spotCmyk")), tolvane::kPaintSpot);
    EXPECT_TRUE(Entries(Lists().spotColorList).empty());
}

// Three objects and a stroke use the same spot colour: one entry, and its count stays 1
// because every insertion is preceded by a look-up.
TEST_F(ColorInventoryTest, ASpotColorUsedByManyObjectsStandsOnceInTheList) {
    globals.mode = tolvane::kModeSpotColors;
    Classify(FillOf("spotCmyk"));
    Classify(StrokeOf("spotCmyk"));
    Classify(FillOf("spotCmykAgain"));
    EXPECT_EQ(CountedEntries(Lists().spotColorList), (Texts{"Warm Red (CMYK):1"}));
}

// Two swatches named "Warm Red" of different models give two entries; a Lab spot says
// "(Lab)". Sorted by code unit: "M" before "W", and "(C" before "(R".
TEST_F(ColorInventoryTest, SpotColorsOfOneNameButTwoModelsGiveTwoEntries) {
    globals.mode = tolvane::kModeSpotColors;
    Classify(FillOf("spotRgb"));
    Classify(FillOf("spotCmyk"));
    Classify(FillOf("spotLab"));
    EXPECT_EQ(Entries(Lists().spotColorList),
              (Texts{"Moss (Lab)", "Warm Red (CMYK)", "Warm Red (RGB)"}));
}

// Process swatches count by their own model and are never listed; Lab counts as RGB.
TEST_F(ColorInventoryTest, ProcessSwatchesMarkTheirModelAndLabCountsAsRgb) {
    globals.mode = tolvane::kModeSpotColors;
    EXPECT_EQ(Classify(FillOf("processCmyk")), tolvane::kPaintCmyk);
    EXPECT_EQ(Classify(FillOf("processRgb")), tolvane::kPaintRgb);
    EXPECT_EQ(Classify(FillOf("processLab")), tolvane::kPaintRgb);
    EXPECT_TRUE(Entries(Lists().spotColorList).empty());
}

TEST_F(ColorInventoryTest, APatternIsListedInThePatternCategoryOnly) {
    EXPECT_EQ(Classify(FillOf("patterned")), tolvane::kPaintPattern);
    EXPECT_TRUE(Entries(Lists().patternList).empty());
    globals.mode = tolvane::kModePatterns;
    EXPECT_EQ(Classify(FillOf("patterned")), tolvane::kPaintPattern);
    EXPECT_EQ(Entries(Lists().patternList), (Texts{"Dots"}));
}

// "Sky" has a white RGB stop and a CMYK spot stop: neither model holds every stop, so it is
// mixed.
TEST_F(ColorInventoryTest, AGradientIsListedInTheGradientCategory) {
    globals.mode = tolvane::kModeGradients;
    EXPECT_EQ(Classify(FillOf("graded")), tolvane::kPaintGradient);
    EXPECT_EQ(Entries(Lists().gradientList), (Texts{"Sky (linear) (Mixed)"}));
}

// The spot colour category gathers gradients too, for the spot colours of their stops; the
// object itself is not marked as a spot colour object.
TEST_F(ColorInventoryTest, TheSpotColorCategoryGathersGradientsForTheirSpotStops) {
    globals.mode = tolvane::kModeSpotColors;
    EXPECT_EQ(Classify(FillOf("graded")), tolvane::kPaintGradient);
    EXPECT_EQ(Entries(Lists().gradientList), (Texts{"Sky (linear) (Mixed)"}));
    EXPECT_EQ(Entries(Lists().spotColorList), (Texts{"Warm Red (CMYK)"}));
}

TEST_F(ColorInventoryTest, ThePatternCategoryDoesNotGatherGradients) {
    globals.mode = tolvane::kModePatterns;
    EXPECT_EQ(Classify(FillOf("graded")), tolvane::kPaintGradient);
    EXPECT_TRUE(Entries(Lists().gradientList).empty());
}

// In the Fonts category nothing is listed, but every model is still marked, so the object
// counters stay right.
TEST_F(ColorInventoryTest, TheFontsCategoryGathersNothingButStillMarks) {
    globals.mode = tolvane::kModeFonts;
    EXPECT_EQ(ClassifyEverything(), tolvane::kPaintRgb | tolvane::kPaintCmyk | tolvane::kPaintGray |
                                        tolvane::kPaintSpot | tolvane::kPaintPattern |
                                        tolvane::kPaintGradient);
    EXPECT_TRUE(Entries(Lists().spotColorList).empty());
    EXPECT_TRUE(Entries(Lists().patternList).empty());
    EXPECT_TRUE(Entries(Lists().gradientList).empty());
}

// Saving gathers everything whatever the category: the three spot swatches, the spot stop of
// "Sky" (the same "Warm Red (CMYK)", listed once), the pattern and the gradient.
TEST_F(ColorInventoryTest, SavingGathersEveryListInAnyCategory) {
    globals.mode = tolvane::kModeFonts;
    globals.saving = 1;
    ClassifyEverything();
    EXPECT_EQ(Entries(Lists().spotColorList),
              (Texts{"Moss (Lab)", "Warm Red (CMYK)", "Warm Red (RGB)"}));
    EXPECT_EQ(Entries(Lists().patternList), (Texts{"Dots"}));
    EXPECT_EQ(Entries(Lists().gradientList), (Texts{"Sky (linear) (Mixed)"}));
}

// Inside an opacity mask only patterns and gradients count.
TEST_F(ColorInventoryTest, SkipSolidIgnoresColorsButNotPatternsAndGradients) {
    globals.mode = tolvane::kModeSpotColors;
    for (const char* id : {"rgb", "cmyk", "gray", "spotCmyk", "processCmyk", "processLab"}) {
        EXPECT_EQ(Classify(FillOf(id), 1), 0u) << id;
    }
    EXPECT_TRUE(Entries(Lists().spotColorList).empty());
    EXPECT_EQ(Classify(FillOf("patterned"), 1), tolvane::kPaintPattern);
    EXPECT_EQ(Classify(FillOf("graded"), 1), tolvane::kPaintGradient);
}

TEST_F(ColorInventoryTest, ASwatchTheHostCannotReadEndsWithTheHostsCode) {
    runtime.faults.FailCall(ZM_CUSTOM_COLOR_SUITE_NAME, 2, ZM_ERR_INTERNAL);
    PaintKind marks = 0;
    EXPECT_EQ(tolvane::AddCustomColor(FillOf("processRgb"), marks, 0), ZM_ERR_INTERNAL);
}

// The spot mark is set before the entry fails; the alert names the place with id -2.
TEST_F(ColorInventoryTest, ASpotColorTheListCannotTakeShowsTheAlertAndGivesOutOfMemory) {
    globals.mode = tolvane::kModeSpotColors;
    runtime.faults.FailAllocation(1);
    PaintKind marks = 0;
    EXPECT_EQ(tolvane::AddCustomColor(FillOf("spotCmyk"), marks, 0), ZM_ERR_NO_MEMORY);
    EXPECT_EQ(marks, tolvane::kPaintSpot);
    EXPECT_TRUE(Entries(Lists().spotColorList).empty());
    EXPECT_EQ(AlertTexts(), (Texts{OutOfMemoryAlert("ID =   AddCustomColor:LinkStrAdd")}));
}

TEST_F(ColorInventoryTest, MarksRaiseTheirCountersOnceEach) {
    tolvane::AddMarksToCounters(tolvane::kPaintRgb | tolvane::kPaintGradient);
    EXPECT_EQ(ModelCounters(), (Counters{1, 0, 0, 0, 0, 1}));
    tolvane::AddMarksToCounters(tolvane::kPaintRgb | tolvane::kPaintCmyk | tolvane::kPaintGray |
                                tolvane::kPaintSpot | tolvane::kPaintPattern);
    EXPECT_EQ(ModelCounters(), (Counters{2, 1, 1, 1, 1, 1}));
}

// Bits 6 and 7 of the low byte and everything above it stand for no model.
TEST_F(ColorInventoryTest, MarksWithoutAModelRaiseNothing) {
    EXPECT_EQ(tolvane::AddMarksToCounters(0xFFFFFFC0u), ZM_ERR_NONE);
    EXPECT_EQ(ModelCounters(), (Counters{0, 0, 0, 0, 0, 0}));
}

// An object's RGB fill and RGB stroke share one mark, so the object counts once as RGB.
TEST_F(ColorInventoryTest, AnObjectCountsOncePerModel) {
    PaintKind marks = 0;
    tolvane::AddCustomColor(FillOf("rgb"), marks, 0);
    tolvane::AddCustomColor(FillOf("processRgb"), marks, 0);
    tolvane::AddMarksToCounters(marks);
    EXPECT_EQ(ModelCounters(), (Counters{1, 0, 0, 0, 0, 0}));
}

// The iteration callback counts after every colour with the marks gathered so far: an RGB
// colour then a CMYK one count RGB twice and CMYK once.
TEST_F(ColorInventoryTest, TheIterationCallbackCountsTheMarksGatheredSoFar) {
    tolvane::ColorTally tally{0, 0};
    ZMColor rgb = FillOf("rgb");
    ZMColor cmyk = FillOf("cmyk");
    EXPECT_EQ(tolvane::AddColorAndCount(&tally, &rgb), ZM_ERR_NONE);
    EXPECT_EQ(ModelCounters(), (Counters{1, 0, 0, 0, 0, 0}));
    EXPECT_EQ(tolvane::AddColorAndCount(&tally, &cmyk), ZM_ERR_NONE);
    EXPECT_EQ(ModelCounters(), (Counters{2, 1, 0, 0, 0, 0}));
    EXPECT_EQ(tally.marks, tolvane::kPaintRgb | tolvane::kPaintCmyk);
}

TEST_F(ColorInventoryTest, TheIterationCallbackPassesSkipSolidOn) {
    tolvane::ColorTally tally{1, 0};
    ZMColor rgb = FillOf("rgb");
    ZMColor gradient = FillOf("graded");
    tolvane::AddColorAndCount(&tally, &rgb);
    tolvane::AddColorAndCount(&tally, &gradient);
    EXPECT_EQ(ModelCounters(), (Counters{0, 0, 0, 0, 0, 1}));
}

TEST_F(ColorInventoryTest, TheIterationCallbackListsSpotColorsInTheirCategory) {
    globals.mode = tolvane::kModeSpotColors;
    tolvane::ColorTally tally{0, 0};
    ZMColor spot = FillOf("spotLab");
    EXPECT_EQ(tolvane::AddColorAndCount(&tally, &spot), ZM_ERR_NONE);
    EXPECT_EQ(Entries(Lists().spotColorList), (Texts{"Moss (Lab)"}));
    EXPECT_EQ(ModelCounters(), (Counters{0, 0, 0, 1, 0, 0}));
}

}  // namespace
