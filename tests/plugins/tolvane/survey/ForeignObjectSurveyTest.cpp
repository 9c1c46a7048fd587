#include "plugins/tolvane/survey/SurveyWalkFixture.hpp"

#include <panel/PanelCategories.hpp>

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace {

using Texts = std::vector<std::string>;

// tests/fixtures/svg/walk/foreign.svg: "note" names Liberation Sans and the missing Qwertyuiop
// Sans, is partly transparent and paints with the spot swatch "Signal Red" and the process
// swatch "Deep Blue"; "again" names Liberation Sans and paints with "Signal Red"; "box" is a
// path.
class ForeignObjectSurveyTest : public zm::test::SurveyWalkFixture {
protected:
    void SetUp() override {
        SurveyWalkFixture::SetUp();
        OpenWalkFixture("foreign.svg");
    }
};

TEST_F(ForeignObjectSurveyTest, InTheFontsCategoryTheContentsFontsAreListedOnce) {
    const tolvane::SurveyRecord& record = Survey(tolvane::kModeFonts);
    EXPECT_EQ(record.foreignObjectCount, 2);
    EXPECT_EQ(record.pathCount, 0);  // the box is not even matched
    // Liberation Sans is a TrueType font, offered by both objects: a font already listed
    // changes nothing, so one entry whose count stays 1. The family no program has is named
    // from the family and flagged as not installed.
    EXPECT_EQ(CountedEntries(Lists().fontList),
              (Texts{"LiberationSans (TrueType):1", "QwertyuiopSans (not installed):1"}));
    EXPECT_EQ(record.fontCount, 2);
}

TEST_F(ForeignObjectSurveyTest, EachSwatchOfTheContentRaisesItsModelsCounter) {
    const tolvane::SurveyRecord& record = Survey(tolvane::kModeFonts);
    // "Signal Red" is a spot colour in both objects: 2. "Deep Blue" is a process swatch with
    // an RGB colour, once: 1. Nothing else in the fonts category looks at paint.
    EXPECT_EQ(record.spotObjectCount, 2);
    EXPECT_EQ(record.rgbObjectCount, 1);
    EXPECT_EQ(record.cmykObjectCount, 0);
    // Only note's content says it is transparent.
    EXPECT_EQ(record.transparentObjectCount, 1);
    // Spot colours are listed only where they are shown.
    EXPECT_EQ(Lists().spotColorList.first, nullptr);
}

TEST_F(ForeignObjectSurveyTest, TheSpotColorCategoryListsTheContentsSpotSwatchOnce) {
    const tolvane::SurveyRecord& record = Survey(tolvane::kModeSpotColors);
    // The swatch's colour is RGB, so its entry says so; met twice, listed and counted once.
    EXPECT_EQ(CountedEntries(Lists().spotColorList),
              (Texts{"Signal Red (RGB):1"}));
    EXPECT_EQ(record.spotObjectCount, 2);  // once per object whose content uses it
    EXPECT_EQ(record.foreignObjectCount, 2);
}

TEST_F(ForeignObjectSurveyTest, OutsideItsCategoriesAForeignObjectIsNotLookedInto) {
    // Linked Images: foreign objects are matched but neither counted nor enumerated.
    const tolvane::SurveyRecord& record = Survey(tolvane::kModeLinkedImages);
    EXPECT_EQ(record.foreignObjectCount, 0);
    EXPECT_EQ(record.fontCount, 0);
    EXPECT_EQ(record.transparentObjectCount, 0);
    EXPECT_EQ(Lists().fontList.first, nullptr);
}

TEST_F(ForeignObjectSurveyTest, WhileSavingEverythingIsGathered) {
    globals.saving = 1;
    const tolvane::SurveyRecord& record = Survey(tolvane::kModeLinkedImages);
    EXPECT_EQ(record.foreignObjectCount, 2);
    EXPECT_EQ(record.fontCount, 2);
    EXPECT_EQ(CountedEntries(Lists().spotColorList),
              (Texts{"Signal Red (RGB):1"}));
    globals.saving = 0;
}

}  // namespace
