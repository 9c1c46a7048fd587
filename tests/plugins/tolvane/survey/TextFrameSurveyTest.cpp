#include "plugins/tolvane/survey/SurveyWalkFixture.hpp"

#include <panel/PanelCategories.hpp>
#include <survey/TextFrameSurvey.hpp>

#include <zelmora/KRXPaintSuites.h>
#include <zelmora/KRXTextFrameSuites.h>
#include <zelmora/ZMFontSuite.h>
#include <zelmora/ZMTextFrameSuite.h>

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace {

using tolvane::SurveyRecord;
using Texts = std::vector<std::string>;
using Counters = std::vector<int32_t>;

// Entries the failure tests break.
constexpr int32_t kGetKRXTextRange = 0;
constexpr int32_t kGetKRXTextFrame = 1;
constexpr int32_t kGetTextPathObject = 2;
constexpr int32_t kKrxFrameGetType = 2;
constexpr int32_t kFontKeyFromKRXFont = 5;
constexpr int32_t kGetZMFillStyle = 0;

class TextFrameSurveyTest : public zm::test::SurveyWalkFixture {
protected:
    void Open(const std::string& name) { OpenFixture("text", name); }

    // Only this frame is surveyed.
    void SelectOnly(const std::string& id) {
        globals.selectionOnly = 1;
        Select(id);
    }

    static Texts Entries(const tolvane::SurveyStringList& list) {
        Texts texts;
        for (const tolvane::SurveyStringNode* node = list.first; node != nullptr;
             node = node->next) {
            texts.push_back(Text(node->text));
        }
        return texts;
    }

    static Texts CountedEntries(const tolvane::SurveyStringList& list) {
        Texts entries;
        for (const tolvane::SurveyStringNode* node = list.first; node != nullptr;
             node = node->next) {
            entries.push_back(Text(node->text) + ":" + std::to_string(node->count));
        }
        return entries;
    }

    // RGB, CMYK, grayscale, spot, pattern, gradient.
    static Counters ModelCounters(const SurveyRecord& record) {
        return {record.rgbObjectCount,  record.cmykObjectCount,    record.grayObjectCount,
                record.spotObjectCount, record.patternObjectCount, record.gradientObjectCount};
    }

    // Frames of all kinds, point, area and on-path.
    static Counters FrameCounters(const SurveyRecord& record) {
        return {record.typeObjectCount, record.pointTypeCount, record.areaTypeCount,
                record.pathTypeCount};
    }
};

// --- Kinds and categories -------------------------------------------------------------------

// fonts-kinds.svg: point is point text; area (shape-inside) and wrapped (inline-size) are
// area text; along runs on a path.
TEST_F(TextFrameSurveyTest, EachKindOfFrameIsCountedUnderItsKind) {
    Open("fonts-kinds.svg");
    EXPECT_EQ(FrameCounters(Survey(tolvane::kModeFonts)), (Counters{4, 1, 2, 1}));
}

// The categories whose text needs the frames: Objects, Spot Colors, Patterns, Fonts and Font
// Details. Elsewhere no frame is surveyed.
TEST_F(TextFrameSurveyTest, FramesAreSurveyedOnlyInTheCategoriesThatShowWhatTheyHold) {
    Open("fonts-kinds.svg");
    for (int16_t mode : {3, 6, 7, 9, 12}) {
        EXPECT_EQ(Survey(mode).typeObjectCount, 4) << "category " << mode;
    }
    for (int16_t mode : {4, 5, 8, 10, 11}) {
        EXPECT_EQ(Survey(mode).typeObjectCount, 0) << "category " << mode;
    }
}

TEST_F(TextFrameSurveyTest, WhileSavingFramesAreSurveyedInAnyCategory) {
    Open("fonts-kinds.svg");
    globals.saving = 1;
    EXPECT_EQ(Survey(tolvane::kModeBrushes).typeObjectCount, 4);
}

// The three frames with a path add their paths to the square: 4 paths. Only along's curve
// is open. Anchors: square 4, box 4, wrapped's line box 4, curve 2 = 14. Lengths in points
// (1 px = 0.75 pt): square 4 x 40 px = 120; box 2 x (80 + 40) px = 180; wrapped's line box,
// 100 px wide and one 16 px line high, 2 x 116 px = 174; curve 180 px = 135; 609 in all.
TEST_F(TextFrameSurveyTest, InTheObjectsCategoryTheFramesPathsAreSurveyedAsPaths) {
    Open("fonts-kinds.svg");
    const SurveyRecord& record = Survey(tolvane::kModeObjects);
    EXPECT_EQ(record.pathCount, 4);
    EXPECT_EQ(record.openPathCount, 1);
    EXPECT_EQ(record.pointCount, 14);
    EXPECT_NEAR(record.totalPathLength, 609.0, 1e-9);
}

TEST_F(TextFrameSurveyTest, AnAreaFrameAddsItsPathToThePaths) {
    Open("fonts-kinds.svg");
    SelectOnly("area");
    EXPECT_EQ(Survey(tolvane::kModeObjects).pathCount, 1);
}

// The point frame has no path; the Fonts category does not count paths at all.
TEST_F(TextFrameSurveyTest, APointFrameAndTheFontsCategoryAddNoPaths) {
    Open("fonts-kinds.svg");
    SelectOnly("point");
    EXPECT_EQ(Survey(tolvane::kModeObjects).pathCount, 0);
    globals.selectionOnly = 0;
    EXPECT_EQ(Survey(tolvane::kModeFonts).pathCount, 0);
}

// --- Fonts ----------------------------------------------------------------------------------

// Two runs in Liberation Sans and Nimbus Sans Bold, both red: one point frame, both fonts
// listed and counted, red counted once. The style check does not run in Fonts, so the
// frame's own red is not counted besides.
TEST_F(TextFrameSurveyTest, InTheFontsCategoryAFrameOfTwoFontsListsBothAndCountsItsColorOnce) {
    Open("fonts-two-runs.svg");
    const SurveyRecord& record = Survey(tolvane::kModeFonts);
    EXPECT_EQ(FrameCounters(record), (Counters{1, 1, 0, 0}));
    EXPECT_EQ(Entries(Lists().fontList),
              (Texts{"LiberationSans (TrueType)", "NimbusSans-Bold (OTF)"}));
    EXPECT_EQ(record.fontCount, 2);
    EXPECT_EQ(ModelCounters(record), (Counters{1, 0, 0, 0, 0, 0}));
}

// The details follow the order of the runs: Liberation Sans's block, then Nimbus Sans's.
TEST_F(TextFrameSurveyTest, FontDetailsFollowTheOrderTheFontsAreUsedIn) {
    Open("fonts-two-runs.svg");
    Survey(tolvane::kModeFontDetails);
    Texts lines = Entries(Lists().fontDetailList);
    ASSERT_EQ(lines.size(), 16u);
    EXPECT_EQ(lines[0], "LiberationSans");
    EXPECT_EQ(lines[8], "NimbusSans-Bold");
}

// Fonts are gathered whatever the category, wherever frames are surveyed.
TEST_F(TextFrameSurveyTest, FontsAreListedInTheObjectsCategoryToo) {
    Open("fonts-two-runs.svg");
    Survey(tolvane::kModeObjects);
    EXPECT_EQ(Entries(Lists().fontList),
              (Texts{"LiberationSans (TrueType)", "NimbusSans-Bold (OTF)"}));
}

// In Objects the style check counts the frame's own red, and the frame survey then counts
// the object's marks, red among them, once more: two RGB objects for one frame.
TEST_F(TextFrameSurveyTest, InTheObjectsCategoryTheStyleCheckAndTheFrameEachCountItsColor) {
    Open("fonts-two-runs.svg");
    EXPECT_EQ(ModelCounters(Survey(tolvane::kModeObjects)), (Counters{2, 0, 0, 0, 0, 0}));
}

// fonts-inventory.svg: Liberation Sans in three frames of six; four fonts in all.
TEST_F(TextFrameSurveyTest, AFontUsedInManyFramesIsListedAndCountedOnce) {
    Open("fonts-inventory.svg");
    const SurveyRecord& record = Survey(tolvane::kModeFontDetails);
    EXPECT_EQ(record.typeObjectCount, 6);
    EXPECT_EQ(record.fontCount, 4);
    EXPECT_EQ(Entries(Lists().fontList).size(), 4u);
    EXPECT_EQ(Lists().fontList.first->count, 1);  // LiberationSans (TrueType), offered 3 times
    EXPECT_EQ(Entries(Lists().fontDetailList).size(), 32u);  // four blocks of eight lines
}

// fonts-hundred.svg: a hundred frames in Liberation Sans (the family is set on the root and
// inherited): one entry offered a hundred times but listed once, so its count stays 1; one
// block of eight lines; one font.
TEST_F(TextFrameSurveyTest, AFontUsedInAHundredFramesIsListedAndCountedOnce) {
    Open("fonts-hundred.svg");
    const SurveyRecord& record = Survey(tolvane::kModeFontDetails);
    EXPECT_EQ(record.typeObjectCount, 100);
    EXPECT_EQ(record.fontCount, 1);
    EXPECT_EQ(CountedEntries(Lists().fontList), (Texts{"LiberationSans (TrueType):1"}));
    EXPECT_EQ(Entries(Lists().fontDetailList).size(), 8u);
}

// A font the catalogue cannot name is left out; the frame is surveyed all the same.
TEST_F(TextFrameSurveyTest, AFontThatCannotBeConvertedIsLeftOut) {
    Open("fonts-two-runs.svg");
    runtime.faults.FailCall(ZM_FONT_SUITE_NAME, kFontKeyFromKRXFont, ZM_ERR_INTERNAL);
    const SurveyRecord& record = Survey(tolvane::kModeFonts);
    EXPECT_TRUE(Entries(Lists().fontList).empty());
    EXPECT_EQ(record.typeObjectCount, 1);
    EXPECT_EQ(record.rgbObjectCount, 1);
}

// --- Paint ----------------------------------------------------------------------------------

// No fill: only the stroke's CMYK counts.
TEST_F(TextFrameSurveyTest, StrokesCountAsWellAsFills) {
    Open("fonts-paints.svg");
    SelectOnly("outlined");
    EXPECT_EQ(ModelCounters(Survey(tolvane::kModeFonts)), (Counters{0, 1, 0, 0, 0, 0}));
}

// A gray run, two red runs and the CMYK stroke: each model once for the object.
TEST_F(TextFrameSurveyTest, EachColorModelOfTheTextCountsOncePerFrame) {
    Open("fonts-paints.svg");
    SelectOnly("mixed");
    EXPECT_EQ(ModelCounters(Survey(tolvane::kModeFonts)), (Counters{1, 1, 1, 0, 0, 0}));
}

// Only the text names the swatch, so the list's entry comes from the frame survey.
TEST_F(TextFrameSurveyTest, ASpotColorOfTheTextIsListedInTheSpotColorCategory) {
    Open("fonts-paints.svg");
    SelectOnly("spotted");
    const SurveyRecord& record = Survey(tolvane::kModeSpotColors);
    EXPECT_EQ(Entries(Lists().spotColorList), (Texts{"Warm Red (CMYK)"}));
    EXPECT_EQ(record.spotObjectCount, 1);
}

TEST_F(TextFrameSurveyTest, InTheFontsCategoryASpotColorIsCountedButNotListed) {
    Open("fonts-paints.svg");
    SelectOnly("spotted");
    EXPECT_EQ(Survey(tolvane::kModeFonts).spotObjectCount, 1);
    EXPECT_TRUE(Entries(Lists().spotColorList).empty());
}

TEST_F(TextFrameSurveyTest, APatternOfTheTextIsListedInThePatternCategory) {
    Open("fonts-paints.svg");
    SelectOnly("dotted");
    const SurveyRecord& record = Survey(tolvane::kModePatterns);
    EXPECT_EQ(Entries(Lists().patternList), (Texts{"Dots"}));
    EXPECT_EQ(record.patternObjectCount, 1);
}

// The gradient category does not survey frames; Spot Colors does, and gathers gradients for
// their spot stops.
TEST_F(TextFrameSurveyTest, AGradientOfTheTextIsGatheredWhereFramesAreSurveyed) {
    Open("fonts-paints.svg");
    SelectOnly("skyText");
    EXPECT_EQ(Survey(tolvane::kModeSpotColors).gradientObjectCount, 1);
    EXPECT_EQ(Entries(Lists().gradientList), (Texts{"Sky (linear) (RGB)"}));
    Survey(tolvane::kModeGradients);
    EXPECT_TRUE(Entries(Lists().gradientList).empty());
}

// The mask's frame is surveyed (and its font listed) but its CMYK marks nothing inside a
// mask; the rect is unpainted.
TEST_F(TextFrameSurveyTest, TextInAnOpacityMaskMarksNoSolidColor) {
    Open("fonts-masked.svg");
    const SurveyRecord& record = Survey(tolvane::kModeObjects);
    EXPECT_EQ(record.opacityMaskCount, 1);
    EXPECT_EQ(record.typeObjectCount, 1);
    EXPECT_EQ(ModelCounters(record), (Counters{0, 0, 0, 0, 0, 0}));
    EXPECT_EQ(Entries(Lists().fontList), (Texts{"LiberationSans (TrueType)"}));
}

// --- Failures -------------------------------------------------------------------------------

// Without a range the frame is not counted, and the survey stops at the first frame.
TEST_F(TextFrameSurveyTest, AFrameWhoseTextCannotBeHadEndsTheSurvey) {
    Open("fonts-kinds.svg");
    runtime.faults.FailCall(ZM_TEXT_FRAME_SUITE_NAME, kGetKRXTextRange, ZM_ERR_INTERNAL);
    EXPECT_EQ(FrameCounters(Survey(tolvane::kModeFonts)), (Counters{0, 0, 0, 0}));
}

// The frame is counted before its kind is asked for; the survey then stops.
TEST_F(TextFrameSurveyTest, AFrameWhoseKindCannotBeHadIsCountedAndEndsTheSurvey) {
    Open("fonts-kinds.svg");
    runtime.faults.FailCall(ZM_TEXT_FRAME_SUITE_NAME, kGetKRXTextFrame, ZM_ERR_INTERNAL);
    EXPECT_EQ(FrameCounters(Survey(tolvane::kModeFonts)), (Counters{1, 0, 0, 0}));
    runtime.faults.Clear();
    runtime.faults.FailCall(ZM_KRX_TEXT_FRAME_SUITE_NAME, kKrxFrameGetType, ZM_ERR_INTERNAL);
    EXPECT_EQ(FrameCounters(Survey(tolvane::kModeFonts)), (Counters{1, 0, 0, 0}));
}

// The fonts are listed before the paints are read; the failing paint stops the survey before
// the colours are counted.
TEST_F(TextFrameSurveyTest, APaintThatCannotBeReadEndsTheSurveyAfterTheFonts) {
    Open("fonts-two-runs.svg");
    runtime.faults.FailCall(ZM_ZMKRX_PAINT_SUITE_NAME, kGetZMFillStyle, ZM_ERR_INTERNAL);
    const SurveyRecord& record = Survey(tolvane::kModeFonts);
    EXPECT_EQ(record.typeObjectCount, 1);
    EXPECT_EQ(record.fontCount, 2);
    EXPECT_EQ(record.rgbObjectCount, 0);
}

// The colours are counted before the path is asked for: the first frame's red twice (the
// style check's count and the frame's), then the survey stops.
TEST_F(TextFrameSurveyTest, AFramePathThatCannotBeHadEndsTheSurveyAfterTheColors) {
    Open("fonts-kinds.svg");
    runtime.faults.FailCall(ZM_TEXT_FRAME_SUITE_NAME, kGetTextPathObject, ZM_ERR_INTERNAL);
    const SurveyRecord& record = Survey(tolvane::kModeObjects);
    EXPECT_EQ(record.typeObjectCount, 1);
    EXPECT_EQ(record.rgbObjectCount, 2);
    EXPECT_EQ(record.pathCount, 0);
}

}  // namespace
