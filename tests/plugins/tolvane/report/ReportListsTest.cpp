#include "plugins/tolvane/PluginUnitFixture.hpp"

#include <report/HostString.hpp>
#include <report/ReportLists.hpp>
#include <survey/SurveyStringList.hpp>

#include <gtest/gtest.h>

#include <string>

namespace {

using tolvane::HostString;
using tolvane::ReportText;
using tolvane::SurveyStringList;

class ReportListsTest : public zm::test::PluginUnitFixture {
protected:
    void TearDown() override {
        tolvane::FreeSurveyStringList(list);
        report = ReportText{};
        PluginUnitFixture::TearDown();
    }

    void Add(const std::string& name) {
        HostString text = tolvane::MakeUnicodeFromBytes(name.c_str(), ZM_ENCODING_UTF8);
        ASSERT_EQ(tolvane::LinkStrAdd(list, text.Get(), false), ZM_ERR_NONE);
    }
    std::string Display() { return Text(report.displayText.Get()); }
    std::string Save() { return Text(report.saveText.Get()); }

    SurveyStringList list{};
    ReportText report;
};

TEST_F(ReportListsTest, AnEmptyNameListGivesItsTitleAndNone) {
    ASSERT_EQ(tolvane::AppendNameList(report, list, tolvane::kTitleBrushes), ZM_ERR_NONE);
    EXPECT_EQ(Display(), "Brushes:\r\n\r\nNONE\r\n");
    EXPECT_EQ(Save(), "Brushes:\r\nNONE\r\n");
}

TEST_F(ReportListsTest, AnEmptyCountedListGivesItsTitleAndNone) {
    ASSERT_EQ(tolvane::AppendCountList(report, list, tolvane::kTitleFonts), ZM_ERR_NONE);
    EXPECT_EQ(Display(), "Fonts:\r\n\r\nNONE\r\n");
    EXPECT_EQ(Save(), "Fonts:\r\nNONE\r\n");
}

// Every name but the last carries a line end of its own, and the save text adds one to every
// line: two after each of the first two names, one after the last. On screen the names stand
// on consecutive lines and the last has none.
TEST_F(ReportListsTest, ANameListOfThreeSavesBlankLinesBetweenTheNames) {
    Add("Gamma");
    Add("Alpha");
    Add("Beta");
    ASSERT_EQ(tolvane::AppendNameList(report, list, tolvane::kTitleGraphicStyles), ZM_ERR_NONE);
    EXPECT_EQ(Display(), "Graphic Styles:\r\n\r\nAlpha\r\nBeta\r\nGamma");
    EXPECT_EQ(Save(), "Graphic Styles:\r\nAlpha\r\n\r\nBeta\r\n\r\nGamma\r\n");
}

// "%s: %d" with the name and its count 2, then the line end every counted line carries; the
// save text adds its own.
TEST_F(ReportListsTest, ACountedListOfOneShowsOneLineEndAndSavesTwo) {
    Add("Minion-Regular (OTF)");
    Add("Minion-Regular (OTF)");
    ASSERT_EQ(tolvane::AppendCountList(report, list, tolvane::kTitleFonts), ZM_ERR_NONE);
    EXPECT_EQ(Display(), "Fonts:\r\n\r\nMinion-Regular (OTF): 2\r\n");
    EXPECT_EQ(Save(), "Fonts:\r\nMinion-Regular (OTF): 2\r\n\r\n");
}

TEST_F(ReportListsTest, EveryCountedLineEndsInALineEndOnScreen) {
    Add("b");
    Add("a");
    tolvane::AppendCountList(report, list, tolvane::kTitleBrushes);
    EXPECT_EQ(Display(), "Brushes:\r\n\r\na: 1\r\nb: 1\r\n");
    EXPECT_EQ(Save(), "Brushes:\r\na: 1\r\n\r\nb: 1\r\n\r\n");
}

TEST_F(ReportListsTest, TheCountFormatFollowsTheLocale) {
    runtime.localizer.AddTranslation("$$$/Tolvane/Str/ResOther/8", "%s (%d)");
    Add("Swatch");
    tolvane::AppendCountList(report, list, tolvane::kTitleSpotColors);
    EXPECT_EQ(Display(), "Spot Color Objects:\r\n\r\nSwatch (1)\r\n");
}

// The line is formatted into 512 bytes, of which 511 hold text and the rest is cut.
TEST_F(ReportListsTest, AnOverlongCountedLineIsCutAtAWholeCharacter) {
    std::string name = "a";
    for (int i = 0; i < 300; ++i) {
        name += "\xC3\xA9";
    }
    Add(name);
    ASSERT_EQ(tolvane::AppendCountList(report, list, tolvane::kTitleFonts), ZM_ERR_NONE);
    // 511 bytes: "a" and 255 whole "é" (511 bytes) fit exactly; ": 1" is cut off.
    EXPECT_EQ(Display(), "Fonts:\r\n\r\n" + name.substr(0, 511) + "\r\n");
}

TEST_F(ReportListsTest, ACutInsideACharacterDropsThatCharacter) {
    std::string name = "ab";
    for (int i = 0; i < 300; ++i) {
        name += "\xC3\xA9";
    }
    Add(name);
    ASSERT_EQ(tolvane::AppendCountList(report, list, tolvane::kTitleFonts), ZM_ERR_NONE);
    // 511 bytes would be "ab" and 254.5 "é": the half character goes, 510 bytes stay.
    EXPECT_EQ(Display(), "Fonts:\r\n\r\n" + name.substr(0, 510) + "\r\n");
}

TEST_F(ReportListsTest, AFailedTitleEndsTheListWithItsCode) {
    Add("a");
    runtime.faults.FailCall(ZM_UNICODE_STRING_SUITE_NAME, 2, ZM_ERR_NO_MEMORY);
    EXPECT_EQ(tolvane::AppendNameList(report, list, tolvane::kTitleBrushes), ZM_ERR_NO_MEMORY);
    runtime.faults.Clear();
    EXPECT_EQ(Display(), "");
}

}  // namespace
