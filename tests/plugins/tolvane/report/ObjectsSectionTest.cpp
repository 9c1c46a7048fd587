#include "plugins/tolvane/SurveyFixture.hpp"
#include "plugins/tolvane/report/ExpectedLines.hpp"
#include "plugins/tolvane/report/ExpectedSections.hpp"

#include <report/ObjectsSection.hpp>
#include <survey/SurveyRecord.hpp>

#include <zelmora/ZMStringFormatUtilsSuite.h>
#include <zelmora/ZMUnicodeStringSuite.h>

#include <gtest/gtest.h>

#include <map>
#include <memory>
#include <string>
#include <vector>

namespace {

using zm::host::document::Document;
using zm::host::document::RulerUnits;
using zm::test::Displayed;
using zm::test::Line;
using zm::test::Saved;

// The title: a blank line after it on screen, one line end in the file.
const Line kTitle{"Objects:", 2};

// The fixed lines after the paths line, in their order, with the breaks that close each group
// (2: a blank line follows on screen). Group 1 (to "Symbol Instances:") comes before the
// optional lines; type, masks and colour, paint kinds, resources come after them.
struct FixedLine {
    const char* label;
    int breaks;
};
const std::vector<FixedLine> kGroupOne = {
    {"Compound Paths:", 1}, {"Gradient Meshes:", 1}, {"Symbol Instances:", 2}};
const std::vector<FixedLine> kGroupsAfter = {{"All Type Objects:", 1},
                                             {"Point Type Objects:", 1},
                                             {"Area Type Objects:", 1},
                                             {"Type on Path Objects:", 2},
                                             {"Clipping Masks:", 1},
                                             {"Opacity Masks:", 1},
                                             {"Transparent Groups:", 1},
                                             {"Transparent Objects:", 1},
                                             {"RGB Objects:", 1},
                                             {"CMYK Objects:", 1},
                                             {"Grayscale Objects:", 2},
                                             {"Spot Color Objects:", 1},
                                             {"Pattern Objects:", 1},
                                             {"Gradient Objects:", 1},
                                             {"Brushed Objects:", 1},
                                             {"Styled Objects:", 2},
                                             {"Fonts:", 1},
                                             {"Linked Images:", 1},
                                             {"Embedded Images:", 1},
                                             {"Non-Native Art Objects:", 1}};

// The whole section: the paths line with `paths` after its label, every fixed line with its
// value from `values` or "NONE", and `optional` between group 1 and the type group.
std::vector<Line> Section(const std::string& paths,
                          const std::map<std::string, std::string>& values = {},
                          const std::vector<Line>& optional = {}) {
    auto fixed = [&](std::vector<Line>& lines, const std::vector<FixedLine>& group) {
        for (const FixedLine& line : group) {
            auto value = values.find(line.label);
            lines.push_back(
                {std::string(line.label) + " " + (value == values.end() ? "NONE" : value->second),
                 line.breaks});
        }
    };
    std::vector<Line> lines = {kTitle, {"Paths: " + paths, 1}};
    fixed(lines, kGroupOne);
    lines.insert(lines.end(), optional.begin(), optional.end());
    fixed(lines, kGroupsAfter);
    return lines;
}

class ObjectsSectionTest : public zm::test::SurveyFixture {
protected:
    // The texts and the survey go back to the host while its suites are still held.
    void TearDown() override {
        report = tolvane::ReportText{};
        runtime.faults.Clear();
        SurveyFixture::TearDown();
    }

    // The length is shown in the unit of the current document's rulers.
    void OpenIn(RulerUnits units) {
        auto document = std::make_unique<Document>();
        document->rulerUnits = units;
        Open(std::move(document));
    }

    // Ten paths, three open, 42 points, 100 pt long.
    void TenPaths() {
        Record().pathCount = 10;
        Record().openPathCount = 3;
        Record().pointCount = 42;
        Record().totalPathLength = 100.0;
    }

    ZMErr Write() { return tolvane::WriteObjectsSection(report); }

    void ExpectLines(const std::vector<Line>& lines) {
        EXPECT_EQ(Text(report.displayText.Get()), Displayed(lines));
        EXPECT_EQ(Text(report.saveText.Get()), Saved(lines));
    }

    // The line of the saved text that starts with `label`.
    std::string SavedLine(const std::string& label) {
        std::string saved = Text(report.saveText.Get());
        std::size_t start = saved.find(label);
        if (start == std::string::npos) {
            return "";
        }
        return saved.substr(start, saved.find("\r\n", start) - start);
    }

    tolvane::ReportText report;
};

// Nothing counted: every fixed line shows NONE.
TEST_F(ObjectsSectionTest, AnEmptySurveyShowsNoneOnEveryFixedLine) {
    OpenIn(RulerUnits::Points);
    ASSERT_EQ(Write(), ZM_ERR_NONE);
    ExpectLines(zm::test::EmptyObjectsSection());
}

// Each fixed counter lands on its own line.
TEST_F(ObjectsSectionTest, EveryFixedCounterShowsOnItsLine) {
    OpenIn(RulerUnits::Points);
    tolvane::SurveyRecord& record = Record();
    record.compoundPathCount = 1;
    record.meshCount = 2;
    record.symbolInstanceCount = 3;
    record.typeObjectCount = 4;
    record.pointTypeCount = 5;
    record.areaTypeCount = 6;
    record.pathTypeCount = 7;
    record.clipMaskCount = 8;
    record.opacityMaskCount = 9;
    record.transparentGroupCount = 10;
    record.transparentObjectCount = 11;
    record.rgbObjectCount = 12;
    record.cmykObjectCount = 13;
    record.grayObjectCount = 14;
    record.spotObjectCount = 15;
    record.patternObjectCount = 16;
    record.gradientObjectCount = 17;
    record.brushedObjectCount = 18;
    record.styledObjectCount = 19;
    record.fontCount = 20;
    record.linkedImageCount = 21;
    record.embeddedImageCount = 22;
    record.foreignObjectCount = 23;
    ASSERT_EQ(Write(), ZM_ERR_NONE);
    ExpectLines(Section("NONE", {{"Compound Paths:", "1"},         {"Gradient Meshes:", "2"},
                                 {"Symbol Instances:", "3"},       {"All Type Objects:", "4"},
                                 {"Point Type Objects:", "5"},     {"Area Type Objects:", "6"},
                                 {"Type on Path Objects:", "7"},   {"Clipping Masks:", "8"},
                                 {"Opacity Masks:", "9"},          {"Transparent Groups:", "10"},
                                 {"Transparent Objects:", "11"},   {"RGB Objects:", "12"},
                                 {"CMYK Objects:", "13"},          {"Grayscale Objects:", "14"},
                                 {"Spot Color Objects:", "15"},    {"Pattern Objects:", "16"},
                                 {"Gradient Objects:", "17"},      {"Brushed Objects:", "18"},
                                 {"Styled Objects:", "19"},        {"Fonts:", "20"},
                                 {"Linked Images:", "21"},         {"Embedded Images:", "22"},
                                 {"Non-Native Art Objects:", "23"}}));
}

// The only optional line is also the last: a blank line follows it on screen.
TEST_F(ObjectsSectionTest, TwoFlaresAloneMakeTheOptionalGroup) {
    OpenIn(RulerUnits::Points);
    Record().flareCount = 2;
    ASSERT_EQ(Write(), ZM_ERR_NONE);
    ExpectLines(Section("NONE", {}, {{"Flares: 2", 2}}));
}

// After "Envelopes:" 3 graphs are still to come; after "Graphs:" nothing is.
TEST_F(ObjectsSectionTest, OnlyTheLastOptionalLineHasABlankLineAfterIt) {
    OpenIn(RulerUnits::Points);
    Record().envelopeCount = 1;
    Record().graphCount = 3;
    ASSERT_EQ(Write(), ZM_ERR_NONE);
    ExpectLines(Section("NONE", {}, {{"Envelopes: 1", 1}, {"Graphs: 3", 2}}));
}

// All nine, in their own order: blends before compound shapes, live paint groups after flares.
TEST_F(ObjectsSectionTest, TheOptionalLinesKeepTheirOrder) {
    OpenIn(RulerUnits::Points);
    tolvane::SurveyRecord& record = Record();
    record.symbolSetCount = 1;
    record.blendCount = 2;
    record.compoundShapeCount = 3;
    record.envelopeCount = 4;
    record.flareCount = 5;
    record.livePaintGroupCount = 6;
    record.tracingObjectCount = 7;
    record.chartCount = 8;
    record.graphCount = 9;
    ASSERT_EQ(Write(), ZM_ERR_NONE);
    ExpectLines(Section("NONE", {},
                        {{"Symbol Instance Sets: 1", 1},
                         {"Blends: 2", 1},
                         {"Compound Shapes: 3", 1},
                         {"Envelopes: 4", 1},
                         {"Flares: 5", 1},
                         {"Live Paint Groups: 6", 1},
                         {"Image Tracing Objects: 7", 1},
                         {"Charts: 8", 1},
                         {"Graphs: 9", 2}}));
}

// Below 1 is "NONE" on a fixed line and no line at all in the optional group.
TEST_F(ObjectsSectionTest, ZeroAndNegativeCountersShowNoneOrNothing) {
    OpenIn(RulerUnits::Points);
    Record().compoundPathCount = 0;
    Record().meshCount = -3;
    Record().fontCount = -1;
    Record().chartCount = -2;
    Record().blendCount = 0;
    ASSERT_EQ(Write(), ZM_ERR_NONE);
    ExpectLines(Section("NONE"));
}

// The sum of the nine counters is 2 + (-1) = 1; the flares line takes 2 off and leaves -1,
// not 0, so the line does not close the group with a blank line.
TEST_F(ObjectsSectionTest, ANegativeOptionalCounterStillCountsInTheSum) {
    OpenIn(RulerUnits::Points);
    Record().envelopeCount = -1;
    Record().flareCount = 2;
    ASSERT_EQ(Write(), ZM_ERR_NONE);
    ExpectLines(Section("NONE", {}, {{"Flares: 2", 1}}));
}

// The host's default formatter groups thousands; the largest counter has three groupings.
TEST_F(ObjectsSectionTest, CountersAreGroupedByThousands) {
    OpenIn(RulerUnits::Points);
    Record().rgbObjectCount = 1234;
    Record().chartCount = 2147483647;
    ASSERT_EQ(Write(), ZM_ERR_NONE);
    ExpectLines(Section("NONE", {{"RGB Objects:", "1,234"}}, {{"Charts: 2,147,483,647", 2}}));
}

// 10 paths, 3 open, so 7 closed; 100 pt stay 100 pt, with 3 decimals ("rulerType" absent
// counts as 2).
TEST_F(ObjectsSectionTest, ThePathsLineCountsOpenAndClosedPathsPointsAndLength) {
    OpenIn(RulerUnits::Points);
    TenPaths();
    ASSERT_EQ(Write(), ZM_ERR_NONE);
    ExpectLines(Section("10 (3 open, 7 closed, 42 points, length = 100.000 pt)"));
}

// The paths line is printed as plain digits: no grouping there, unlike the counters.
TEST_F(ObjectsSectionTest, ThePathsLinePrintsItsCountsWithoutGrouping) {
    OpenIn(RulerUnits::Points);
    Record().pathCount = 1234;
    Record().openPathCount = 234;
    Record().pointCount = 5678;
    Record().totalPathLength = 100.0;
    ASSERT_EQ(Write(), ZM_ERR_NONE);
    EXPECT_EQ(SavedLine("Paths:"),
              "Paths: 1234 (234 open, 1000 closed, 5678 points, length = 100.000 pt)");
}

// Once the points overflowed only the number of paths is shown.
TEST_F(ObjectsSectionTest, OverflowedPointsLeaveThePathCountAlone) {
    OpenIn(RulerUnits::Points);
    Record().pathCount = 5;
    Record().openPathCount = 2;
    Record().pointCount = -1;
    Record().totalPathLength = 100.0;
    ASSERT_EQ(Write(), ZM_ERR_NONE);
    ExpectLines(Section("5"));
}

TEST_F(ObjectsSectionTest, AnOverflowedLengthIsTooLongToDisplay) {
    OpenIn(RulerUnits::Points);
    Record().pathCount = 5;
    Record().openPathCount = 2;
    Record().pointCount = 40;
    Record().totalPathLength = -1.0;
    ASSERT_EQ(Write(), ZM_ERR_NONE);
    ExpectLines(Section("5 (2 open, 3 closed, 40 points, length = too long to display)"));
}

// rulerType 0 and 4 (0 once the bit of value 4 is set aside) give four decimals, any other
// value three. 100 pt = 100 * 25.4 / 72 mm = 35.27777... mm.
struct DecimalsCase {
    int32_t rulerType;
    const char* length;
};

class ObjectsSectionDecimalsTest : public ObjectsSectionTest,
                                   public ::testing::WithParamInterface<DecimalsCase> {};

TEST_P(ObjectsSectionDecimalsTest, TheRulerTypePreferencePicksTheDecimals) {
    OpenIn(RulerUnits::Millimeters);
    runtime.preferences.SetInteger("rulerType", GetParam().rulerType);
    TenPaths();
    ASSERT_EQ(Write(), ZM_ERR_NONE);
    EXPECT_EQ(
        SavedLine("Paths:"),
        std::string("Paths: 10 (3 open, 7 closed, 42 points, length = ") + GetParam().length + ")");
}

INSTANTIATE_TEST_SUITE_P(RulerTypes, ObjectsSectionDecimalsTest,
                         ::testing::Values(DecimalsCase{0, "35.2778 mm"},
                                           DecimalsCase{4, "35.2778 mm"},
                                           DecimalsCase{2, "35.278 mm"},
                                           DecimalsCase{6, "35.278 mm"},
                                           DecimalsCase{1, "35.278 mm"}));

// The preference never picks the unit: rulerType 0 in a points document still shows points.
TEST_F(ObjectsSectionTest, TheRulerTypeDoesNotPickTheUnit) {
    OpenIn(RulerUnits::Points);
    runtime.preferences.SetInteger("rulerType", 0);
    TenPaths();
    ASSERT_EQ(Write(), ZM_ERR_NONE);
    EXPECT_EQ(SavedLine("Paths:"), "Paths: 10 (3 open, 7 closed, 42 points, length = 100.0000 pt)");
}

// 100 pt in each ruler unit, three decimals: px 0.75 pt, in 72 pt, mm 72 / 25.4 pt,
// cm 720 / 25.4 pt, pc 12 pt.
struct UnitCase {
    RulerUnits units;
    const char* length;
};

class ObjectsSectionUnitTest : public ObjectsSectionTest,
                               public ::testing::WithParamInterface<UnitCase> {};

TEST_P(ObjectsSectionUnitTest, TheLengthIsInTheDocumentsRulerUnit) {
    OpenIn(GetParam().units);
    TenPaths();
    ASSERT_EQ(Write(), ZM_ERR_NONE);
    EXPECT_EQ(
        SavedLine("Paths:"),
        std::string("Paths: 10 (3 open, 7 closed, 42 points, length = ") + GetParam().length + ")");
}

INSTANTIATE_TEST_SUITE_P(RulerUnits, ObjectsSectionUnitTest,
                         ::testing::Values(UnitCase{RulerUnits::Points, "100.000 pt"},
                                           UnitCase{RulerUnits::Pixels, "133.333 px"},
                                           UnitCase{RulerUnits::Inches, "1.389 in"},
                                           UnitCase{RulerUnits::Millimeters, "35.278 mm"},
                                           UnitCase{RulerUnits::Centimeters, "3.528 cm"},
                                           UnitCase{RulerUnits::Picas, "8.333 pc"}));

// A new document's rulers are in pixels: 100 pt / 0.75 = 133.333 px.
TEST_F(ObjectsSectionTest, ANewDocumentShowsTheLengthInPixels) {
    Open();
    TenPaths();
    ASSERT_EQ(Write(), ZM_ERR_NONE);
    EXPECT_EQ(SavedLine("Paths:"), "Paths: 10 (3 open, 7 closed, 42 points, length = 133.333 px)");
}

// In German the counters group with "."; the toolkit prints the length with its own "." and
// no grouping, whatever the locale: 925.875 pt / 0.75 = 1234.5 px.
TEST_F(ObjectsSectionTest, InGermanTheCountersGroupTheGermanWayButTheLengthKeepsItsPoint) {
    runtime.localizer.SetLocale("de-DE");
    OpenIn(RulerUnits::Pixels);
    Record().pathCount = 2;
    Record().openPathCount = 1;
    Record().pointCount = 8;
    Record().totalPathLength = 925.875;
    Record().rgbObjectCount = 1234;
    ASSERT_EQ(Write(), ZM_ERR_NONE);
    ExpectLines(Section("2 (1 open, 1 closed, 8 points, length = 1234.500 px)",
                        {{"RGB Objects:", "1.234"}}));
}

// Labels, the words of the paths line and NONE are the locale's, own keys included.
TEST_F(ObjectsSectionTest, LabelsAndWordsAreFetchedThroughTheHost) {
    runtime.localizer.AddTranslation("$$$/Tolvane/Str/ResObject/Flare", "Blendenflecke:");
    runtime.localizer.AddTranslation("$$$/Tolvane/Str/ResObject/25", "offen");
    runtime.localizer.AddTranslation("$$$/Tolvane/Str/ResOther/6", "KEINE");
    OpenIn(RulerUnits::Points);
    TenPaths();
    Record().flareCount = 2;
    ASSERT_EQ(Write(), ZM_ERR_NONE);
    EXPECT_EQ(SavedLine("Paths:"), "Paths: 10 (3 offen, 7 closed, 42 points, length = 100.000 pt)");
    EXPECT_EQ(SavedLine("Blendenflecke:"), "Blendenflecke: 2");
    EXPECT_EQ(SavedLine("Fonts:"), "Fonts: KEINE");
}

// The title's key cannot be fetched: nothing is written and the fetch's code comes back.
TEST_F(ObjectsSectionTest, ATitleThatCannotBeAppendedSkipsTheSection) {
    OpenIn(RulerUnits::Points);
    TenPaths();
    runtime.faults.FailCall(ZM_UNICODE_STRING_SUITE_NAME, 2, ZM_ERR_NO_MEMORY);
    EXPECT_EQ(Write(), ZM_ERR_NO_MEMORY);
    runtime.faults.Clear();
    EXPECT_EQ(Text(report.displayText.Get()), "");
    EXPECT_EQ(Text(report.saveText.Get()), "");
}

// Without a formatter no line can be built: the title stays alone.
TEST_F(ObjectsSectionTest, AFormatterThatCannotBeMadeStopsAfterTheTitle) {
    OpenIn(RulerUnits::Points);
    runtime.faults.FailCall(ZM_STRING_FORMAT_UTILS_SUITE_NAME, 0, ZM_ERR_NO_MEMORY);
    EXPECT_EQ(Write(), ZM_ERR_NO_MEMORY);
    runtime.faults.Clear();
    ExpectLines({kTitle});
}

// The paths line needs no formatter ("NONE"); the first counter above 0 does, and the
// section stops there with the formatter's code.
TEST_F(ObjectsSectionTest, AFailingNumberStopsTheSectionWhereItFailed) {
    OpenIn(RulerUnits::Points);
    Record().meshCount = 3;
    runtime.faults.FailCall(ZM_STRING_FORMAT_UTILS_SUITE_NAME, 2, ZM_ERR_INTERNAL);
    EXPECT_EQ(Write(), ZM_ERR_INTERNAL);
    runtime.faults.Clear();
    ExpectLines({kTitle, {"Paths: NONE", 1}, {"Compound Paths: NONE", 1}});
}

// A "rulerType" that is not a number cannot be read: the paths line is not written.
TEST_F(ObjectsSectionTest, AnUnreadableRulerTypeStopsBeforeThePathsLine) {
    OpenIn(RulerUnits::Points);
    runtime.preferences.Set("rulerType", "wide");
    TenPaths();
    EXPECT_EQ(Write(), ZM_ERR_WRONG_TYPE);
    ExpectLines({kTitle});
}

// Without paths the length is not worked out, so the preference is never read.
TEST_F(ObjectsSectionTest, WithoutPathsTheRulerTypeIsNotRead) {
    OpenIn(RulerUnits::Points);
    runtime.preferences.Set("rulerType", "wide");
    ASSERT_EQ(Write(), ZM_ERR_NONE);
    ExpectLines(Section("NONE"));
}

TEST_F(ObjectsSectionTest, WithoutASurveyOnlyTheTitleIsWritten) {
    tolvane::FreeSurvey();
    EXPECT_EQ(Write(), ZM_ERR_PARAMETER);
    ExpectLines({kTitle});
}

}  // namespace
