#include "plugins/tolvane/inventory/InventoryFixture.hpp"

#include <inventory/StyleInventory.hpp>
#include <report/ReportLists.hpp>
#include <report/ReportText.hpp>
#include <suites/DictionaryObject.hpp>

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace {

using Texts = std::vector<std::string>;
using Counters = std::vector<int32_t>;
using tolvane::PaintKind;

class StyleInventoryTest : public zm::test::InventoryFixture {
protected:
    void SetUp() override {
        InventoryFixture::SetUp();
        Import("styles.svg");
    }

    void TearDown() override {
        report = tolvane::ReportText{};
        InventoryFixture::TearDown();
    }

    // One object's check, with marks of its own as the walk gives each object.
    ZMErr Check(const std::string& id, int16_t artType = ZM_ART_PATH, int32_t skipSolid = 0) {
        PaintKind marks = 0;
        return Check(id, marks, artType, skipSolid);
    }
    ZMErr Check(const std::string& id, PaintKind& marks, int16_t artType = ZM_ART_PATH,
                int32_t skipSolid = 0) {
        std::size_t held = runtime.objects.Size();
        ZMErr error = tolvane::CheckStyle(Art(id), artType, marks, skipSolid);
        EXPECT_EQ(runtime.objects.Size(), held) << "a parser or dictionary was kept";
        return error;
    }

    // transparentGroupCount, transparentObjectCount.
    Counters Transparency() {
        return {Record().transparentGroupCount, Record().transparentObjectCount};
    }

    tolvane::ReportText report;
};

// Ten objects of the class "Shadow": one entry counted ten times, and the report line reads
// the name, a colon, a blank and 10.
TEST_F(StyleInventoryTest, TenObjectsWithOneGraphicStyleGiveOneLineCountingTen) {
    for (int i = 0; i < 10; ++i) {
        ASSERT_EQ(Check("shadow" + std::to_string(i)), ZM_ERR_NONE);
    }
    EXPECT_EQ(CountedEntries(Lists().graphicStyleList), (Texts{"Shadow:10"}));
    EXPECT_EQ(Record().styledObjectCount, 10);
    ASSERT_EQ(
        tolvane::AppendCountList(report, Lists().graphicStyleList, tolvane::kTitleGraphicStyles),
        ZM_ERR_NONE);
    EXPECT_EQ(Text(report.displayText.Get()), "Graphic Styles:\r\n\r\nShadow: 10\r\n");
}

TEST_F(StyleInventoryTest, AnAnonymousStyleIsNeitherCountedNorListed) {
    ASSERT_EQ(Check("anonymous"), ZM_ERR_NONE);
    EXPECT_TRUE(Entries(Lists().graphicStyleList).empty());
    EXPECT_EQ(Record().styledObjectCount, 0);
}

// A class and a zm:graphic-style name, in order of their names.
TEST_F(StyleInventoryTest, NamedStylesAreListedInOrderOfTheirNames) {
    Check("shadow0");
    Check("outlined");
    Check("heading");
    EXPECT_EQ(CountedEntries(Lists().graphicStyleList),
              (Texts{"Heading:1", "Outline:1", "Shadow:1"}));
    EXPECT_EQ(Record().styledObjectCount, 3);
}

TEST_F(StyleInventoryTest, GraphicStylesAreGatheredInEveryCategory) {
    globals.mode = tolvane::kModeFonts;
    Check("heading");
    EXPECT_EQ(Entries(Lists().graphicStyleList), (Texts{"Heading"}));
}

// A red fill and a CMYK black stroke: one RGB and one CMYK object, counted by the check.
TEST_F(StyleInventoryTest, TheFillAndStrokeAreClassifiedAndCountedOncePerModel) {
    PaintKind marks = 0;
    ASSERT_EQ(Check("twoModels", marks), ZM_ERR_NONE);
    EXPECT_EQ(marks, tolvane::kPaintRgb | tolvane::kPaintCmyk);
    EXPECT_EQ(ModelCounters(), (Counters{1, 1, 0, 0, 0, 0}));
}

TEST_F(StyleInventoryTest, AnRgbFillAndAnRgbStrokeCountTheObjectOnce) {
    ASSERT_EQ(Check("oneModelTwice"), ZM_ERR_NONE);
    EXPECT_EQ(ModelCounters(), (Counters{1, 0, 0, 0, 0, 0}));
}

TEST_F(StyleInventoryTest, WithoutFillOrStrokeNothingIsCounted) {
    ASSERT_EQ(Check("unpainted"), ZM_ERR_NONE);
    EXPECT_EQ(ModelCounters(), (Counters{0, 0, 0, 0, 0, 0}));
}

// A brushed style is parsed: its spot fill and its pattern stroke are classified from the
// parsed fields, and the brush is counted.
TEST_F(StyleInventoryTest, AParsedStylesFillAndStrokeAreClassified) {
    PaintKind marks = 0;
    ASSERT_EQ(Check("brushedPaints", marks), ZM_ERR_NONE);
    EXPECT_EQ(marks, tolvane::kPaintSpot | tolvane::kPaintPattern);
    EXPECT_EQ(ModelCounters(), (Counters{0, 0, 0, 1, 1, 0}));
    EXPECT_EQ(Record().brushedObjectCount, 1);
}

// Inside a mask the spot fill is ignored and the pattern stroke still counts.
TEST_F(StyleInventoryTest, SkipSolidReachesTheParsedFields) {
    PaintKind marks = 0;
    ASSERT_EQ(Check("brushedPaints", marks, ZM_ART_PATH, 1), ZM_ERR_NONE);
    EXPECT_EQ(marks, tolvane::kPaintPattern);
}

TEST_F(StyleInventoryTest, TheParsedFieldsFeedTheCollectorsOfTheShownCategory) {
    globals.mode = tolvane::kModePatterns;
    ASSERT_EQ(Check("brushedPaints"), ZM_ERR_NONE);
    EXPECT_EQ(Entries(Lists().patternList), (Texts{"Dots"}));
    EXPECT_TRUE(Entries(Lists().spotColorList).empty());
}

// Opacity 0.5 and multiply blending make groups transparent; a group at full opacity is not,
// whatever it holds.
TEST_F(StyleInventoryTest, ATransparentGroupCountsWithTheGroups) {
    Check("faintGroup", ZM_ART_GROUP);
    Check("multiplyGroup", ZM_ART_GROUP);
    Check("opaqueGroup", ZM_ART_GROUP);
    EXPECT_EQ(Transparency(), (Counters{2, 0}));
}

// Opacity 0.5, a fill opacity of 0.25 (the object shows at 0.25) and screen blending; the
// plain rect counts nothing.
TEST_F(StyleInventoryTest, OtherTransparentArtCountsWithTheObjects) {
    Check("faintRect");
    Check("faintFill");
    Check("screened");
    Check("anonymous");
    EXPECT_EQ(Transparency(), (Counters{0, 3}));
}

// The art's type decides the counter, not the style.
TEST_F(StyleInventoryTest, TheArtTypeDecidesWhichTransparencyCounterRises) {
    Check("faintGroup", ZM_ART_COMPOUND_PATH);
    EXPECT_EQ(Transparency(), (Counters{0, 1}));
}

// Brushed styles are parsed; their blending comes from the parsed blend dictionary.
TEST_F(StyleInventoryTest, AParsedStylesBlendingCountsToo) {
    Check("brushedFaint");
    Check("brushedMultiply");
    Check("feathered");
    EXPECT_EQ(Transparency(), (Counters{0, 2}));
}

TEST_F(StyleInventoryTest, APlainStylesBlendingIsReadThroughTheBlendStyleSuite) {
    runtime.faults.FailCall(ZM_BLEND_STYLE_SUITE_NAME, 3, ZM_ERR_INTERNAL);
    EXPECT_EQ(Check("faintRect"), ZM_ERR_INTERNAL);
    EXPECT_EQ(Check("brushedFaint"), ZM_ERR_NONE);  // parsed: the suite is not asked
}

TEST_F(StyleInventoryTest, AParsedStylesBlendingIsReadFromItsBlendDictionary) {
    runtime.faults.FailCall(ZM_ART_STYLE_PARSER_SUITE_NAME, 11, ZM_ERR_INTERNAL);
    EXPECT_EQ(Check("brushedFaint"), ZM_ERR_INTERNAL);
    EXPECT_EQ(runtime.objects.Count<zm::host::DictionaryObject>(), 0u);
}

TEST_F(StyleInventoryTest, AFailingStyleQueryEndsWithTheHostsCode) {
    runtime.faults.FailCall(ZM_ART_STYLE_SUITE_NAME, 0, ZM_ERR_INTERNAL);
    EXPECT_EQ(Check("shadow0"), ZM_ERR_INTERNAL);
    EXPECT_EQ(Record().styledObjectCount, 0);
}

// The alert shows id -1 and the place; the survey goes on: the object is still counted as
// styled and its RGB fill still counts.
TEST_F(StyleInventoryTest, AStyleTheListCannotTakeShowsTheAlertAndTheSurveyGoesOn) {
    runtime.faults.FailAllocation(1);
    EXPECT_EQ(Check("shadow0"), ZM_ERR_NONE);
    EXPECT_TRUE(Entries(Lists().graphicStyleList).empty());
    EXPECT_EQ(Record().styledObjectCount, 1);
    EXPECT_EQ(ModelCounters(), (Counters{1, 0, 0, 0, 0, 0}));
    EXPECT_EQ(AlertTexts(), (Texts{OutOfMemoryAlert("ID =   CheckStyle:LinkStrAdd")}));
}

}  // namespace
