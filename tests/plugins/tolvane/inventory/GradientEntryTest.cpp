#include "plugins/tolvane/inventory/InventoryFixture.hpp"

#include <inventory/ColorInventory.hpp>

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace {

using Texts = std::vector<std::string>;

class GradientEntryTest : public zm::test::InventoryFixture {
protected:
    void SetUp() override {
        InventoryFixture::SetUp();
        Import("gradients.svg");
    }

    // The gradient filling the rect "<id>Art".
    ZMErr Add(const std::string& id) { return tolvane::AddGradient(FillOf(id + "Art").c.gradient); }

    // The one entry a gradient alone gives.
    std::string EntryOf(const std::string& id) {
        EXPECT_EQ(Add(id), ZM_ERR_NONE);
        Texts texts = Entries(Lists().gradientList);
        tolvane::ResetSurvey(true);
        return texts.size() == 1 ? texts.front() : "(" + std::to_string(texts.size()) + ")";
    }
};

// Two white-to-blue RGB stops on a radial gradient.
TEST_F(GradientEntryTest, TheEntryIsNameTypeAndModel) {
    EXPECT_EQ(EntryOf("sky"), "Sky (radial) (RGB)");
}

// No stops: every tally is 0 and equals the count of 0, and RGB is asked first.
TEST_F(GradientEntryTest, AGradientWithoutStopsIsRgb) {
    EXPECT_EQ(EntryOf("emptyLinear"), "Empty (linear) (RGB)");
    EXPECT_EQ(EntryOf("emptyRadial"), "Empty (radial) (RGB)");
}

TEST_F(GradientEntryTest, GrayStopsAloneAreGrayscale) {
    EXPECT_EQ(EntryOf("grayFade"), "Gray Fade (linear) (Grayscale)");
}

// One RGB stop and one CMYK stop: no model holds both, so the choice falls through to mixed.
TEST_F(GradientEntryTest, StopsOfTwoModelsAreMixed) {
    EXPECT_EQ(EntryOf("rgbAndCmyk"), "Half and Half (linear) (Mixed)");
}

// A Lab swatch stop is tallied as "other", which makes any gradient mixed.
TEST_F(GradientEntryTest, ALabSwatchStopMakesTheGradientMixed) {
    EXPECT_EQ(EntryOf("labStop"), "Lab Stop (linear) (Mixed)");
}

// Process swatch stops count under their own model: an RGB swatch with white, a CMYK swatch
// with a CMYK white.
TEST_F(GradientEntryTest, ProcessSwatchStopsCountUnderTheirModel) {
    EXPECT_EQ(EntryOf("processStops"), "Process (linear) (RGB)");
    EXPECT_EQ(EntryOf("processCmykStops"), "Process CMYK (linear) (CMYK)");
}

// Three stops, all CMYK spot swatches: a CMYK gradient. "Warm Red" stands twice among the
// stops and once in the spot list; "C" sorts before "W".
TEST_F(GradientEntryTest, SpotCmykStopsMakeACmykGradientAndListEachSpotOnce) {
    ASSERT_EQ(Add("spotInks"), ZM_ERR_NONE);
    EXPECT_EQ(Entries(Lists().gradientList), (Texts{"Spot Inks (linear) (CMYK)"}));
    EXPECT_EQ(CountedEntries(Lists().spotColorList),
              (Texts{"Cool Blue (CMYK):1", "Warm Red (CMYK):1"}));
}

// Spot stops are listed in whatever category the panel shows; the survey's spot counter is
// not the gradient's to raise.
TEST_F(GradientEntryTest, SpotStopsAreListedInAnyCategoryWithoutCountingASpotObject) {
    globals.mode = tolvane::kModeFonts;
    ASSERT_EQ(Add("signalStops"), ZM_ERR_NONE);
    EXPECT_EQ(Entries(Lists().spotColorList), (Texts{"Signal (RGB)"}));
    EXPECT_EQ(Record().spotObjectCount, 0);
}

TEST_F(GradientEntryTest, AProcessSwatchStopIsNotListedAsASpotColor) {
    ASSERT_EQ(Add("processStops"), ZM_ERR_NONE);
    EXPECT_TRUE(Entries(Lists().spotColorList).empty());
}

// "Signal Fade" is an RGB spot swatch and white: RGB. When the host cannot read the swatch,
// that stop is tallied nowhere (RGB 1 of 2: mixed) and gives no spot entry.
TEST_F(GradientEntryTest, AStopWhoseSwatchCannotBeReadIsLeftOut) {
    EXPECT_EQ(EntryOf("signalStops"), "Signal Fade (linear) (RGB)");
    runtime.faults.FailCall(ZM_CUSTOM_COLOR_SUITE_NAME, 2, ZM_ERR_INTERNAL);
    ASSERT_EQ(Add("signalStops"), ZM_ERR_NONE);
    EXPECT_EQ(Entries(Lists().gradientList), (Texts{"Signal Fade (linear) (Mixed)"}));
    EXPECT_TRUE(Entries(Lists().spotColorList).empty());
}

// Exactly the host's unnamed name: the localized text alone.
TEST_F(GradientEntryTest, TheUnnamedNameIsTheLocalizedTextAlone) {
    EXPECT_EQ(EntryOf("unnamed"), "Unnamed gradient (linear) (CMYK)");
    runtime.localizer.AddTranslation("$$$/Tolvane/Str/ResGradient/7", "Verlauf ohne Namen");
    EXPECT_EQ(EntryOf("unnamed"), "Verlauf ohne Namen (linear) (CMYK)");
}

// Whatever follows the 16 characters stays: " 3" with its blank, and the "s" of a plural.
TEST_F(GradientEntryTest, WhatFollowsTheUnnamedPrefixIsKept) {
    runtime.localizer.AddTranslation("$$$/Tolvane/Str/ResGradient/7", "Verlauf ohne Namen");
    EXPECT_EQ(EntryOf("unnamed3"), "Verlauf ohne Namen 3 (linear) (RGB)");
    EXPECT_EQ(EntryOf("unnamedPlural"), "Verlauf ohne Namens (linear) (RGB)");
}

TEST_F(GradientEntryTest, TheTypeAndModelWordsFollowTheLocale) {
    runtime.localizer.AddTranslation("$$$/Tolvane/Str/ResGradient/2", " (radial DE)");
    runtime.localizer.AddTranslation("$$$/Tolvane/Str/ResGradient/4", " (RVB)");
    EXPECT_EQ(EntryOf("sky"), "Sky (radial DE) (RVB)");
}

// Two gradients named "Twin", both linear with CMYK stops, share one entry of count 1. Only
// the first is new, so only its spot stop ("Warm Red") is listed, not the second's
// ("Cool Blue").
TEST_F(GradientEntryTest, GradientsWithTheSameEntryShareItAndOnlyTheFirstListsItsSpots) {
    ASSERT_EQ(Add("twinA"), ZM_ERR_NONE);
    ASSERT_EQ(Add("twinB"), ZM_ERR_NONE);
    EXPECT_EQ(CountedEntries(Lists().gradientList), (Texts{"Twin (linear) (CMYK):1"}));
    EXPECT_EQ(Entries(Lists().spotColorList), (Texts{"Warm Red (CMYK)"}));
}

// "E" < "S" < "T"; "(l" < "(r".
TEST_F(GradientEntryTest, EntriesStandInOrderOfTheirText) {
    for (const char* id : {"twinA", "sky", "emptyRadial", "emptyLinear"}) {
        ASSERT_EQ(Add(id), ZM_ERR_NONE) << id;
    }
    EXPECT_EQ(Entries(Lists().gradientList), (Texts{"Empty (linear) (RGB)", "Empty (radial) (RGB)",
                                                    "Sky (radial) (RGB)", "Twin (linear) (CMYK)"}));
}

TEST_F(GradientEntryTest, AFailingNameQueryEndsWithTheHostsCode) {
    runtime.faults.FailCall(ZM_GRADIENT_SUITE_NAME, 2, ZM_ERR_INTERNAL);
    EXPECT_EQ(Add("sky"), ZM_ERR_INTERNAL);
    EXPECT_TRUE(Entries(Lists().gradientList).empty());
}

TEST_F(GradientEntryTest, AFailingStopQueryEndsWithTheHostsCodeBeforeAnythingIsListed) {
    runtime.faults.FailCall(ZM_GRADIENT_SUITE_NAME, 5, ZM_ERR_INTERNAL);
    EXPECT_EQ(Add("spotInks"), ZM_ERR_INTERNAL);
    EXPECT_TRUE(Entries(Lists().gradientList).empty());
    EXPECT_TRUE(Entries(Lists().spotColorList).empty());
}

// The gradient's own node is the allocation that fails: nothing listed, its stops unvisited.
TEST_F(GradientEntryTest, AGradientTheListCannotTakeShowsTheAlertAndGivesOutOfMemory) {
    runtime.faults.FailAllocation(1);
    EXPECT_EQ(Add("spotInks"), ZM_ERR_NO_MEMORY);
    EXPECT_TRUE(Entries(Lists().gradientList).empty());
    EXPECT_TRUE(Entries(Lists().spotColorList).empty());
    EXPECT_EQ(AlertTexts(), (Texts{OutOfMemoryAlert("ID =   AddGradient:LinkStrAdd")}));
}

// The second allocation is the first spot stop's ("Warm Red"): the gradient stays listed and
// the spot alert carries the gradient's id and place.
TEST_F(GradientEntryTest, ASpotStopTheListCannotTakeEndsTheWalkWithOutOfMemory) {
    runtime.faults.FailAllocation(2);
    EXPECT_EQ(Add("spotInks"), ZM_ERR_NO_MEMORY);
    EXPECT_EQ(Entries(Lists().gradientList), (Texts{"Spot Inks (linear) (CMYK)"}));
    EXPECT_TRUE(Entries(Lists().spotColorList).empty());
    EXPECT_EQ(AlertTexts(), (Texts{OutOfMemoryAlert("ID =   AddGradient:LinkStrAdd")}));
}

}  // namespace
