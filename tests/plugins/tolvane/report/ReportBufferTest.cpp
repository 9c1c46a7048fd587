#include "plugins/tolvane/PluginUnitFixture.hpp"

#include <report/HostString.hpp>
#include <report/ReportBuffer.hpp>
#include <report/ReportText.hpp>

#include <gtest/gtest.h>

#include <string>

namespace {

using tolvane::HostString;
using tolvane::MakeUnicodeFromBytes;
using tolvane::ReportText;

class ReportBufferTest : public zm::test::PluginUnitFixture {
protected:
    // The texts go back to the host while its suites are still held.
    void TearDown() override {
        report = tolvane::ReportText{};
        PluginUnitFixture::TearDown();
    }

    HostString Line(const std::string& utf8) {
        return MakeUnicodeFromBytes(utf8.c_str(), ZM_ENCODING_UTF8);
    }
    std::string Display() { return Text(report.displayText.Get()); }
    std::string Save() { return Text(report.saveText.Get()); }

    ReportText report;
};

TEST_F(ReportBufferTest, ALineGoesToBothTextsTheSaveTextWithOneLineEnd) {
    HostString line = Line("Paths: 3");
    ASSERT_EQ(tolvane::AppendReportLine(report, line.Get(), 1), ZM_ERR_NONE);
    EXPECT_EQ(Display(), "Paths: 3\r\n");
    EXPECT_EQ(Save(), "Paths: 3\r\n");
}

TEST_F(ReportBufferTest, TwoBreaksShowABlankLineButSaveASingleLine) {
    HostString line = Line("Fonts:");
    ASSERT_EQ(tolvane::AppendReportLine(report, line.Get(), 2), ZM_ERR_NONE);
    EXPECT_EQ(Display(), "Fonts:\r\n\r\n");
    EXPECT_EQ(Save(), "Fonts:\r\n");
}

TEST_F(ReportBufferTest, NoBreaksOrNegativeBreaksAddNothingOnScreen) {
    HostString first = Line("a");
    HostString second = Line("b");
    tolvane::AppendReportLine(report, first.Get(), 0);
    tolvane::AppendReportLine(report, second.Get(), -3);
    EXPECT_EQ(Display(), "ab");
    EXPECT_EQ(Save(), "a\r\nb\r\n");
}

TEST_F(ReportBufferTest, TheCallersLineReceivesTheLineEnd) {
    HostString line = Line("x");
    tolvane::AppendReportLine(report, line.Get(), 0);
    EXPECT_EQ(Text(line.Get()), "x\r\n");
}

// With S the save text's length and L the line's: S + 1 + L must stay below 1,048,576.
// S = 1,000,000, so L = 48,574 gives S + L = 1,048,574 (fits) and L = 48,575 gives
// 1,048,575 (refused).
TEST_F(ReportBufferTest, TheLastLineThatFitsLeavesTheSumAt1048574) {
    report.saveText = Line(std::string(1000000, 's'));
    HostString line = Line(std::string(48574, 'l'));
    ASSERT_EQ(tolvane::AppendReportLine(report, line.Get(), 0), ZM_ERR_NONE);
    EXPECT_EQ(Display(), std::string(48574, 'l'));
    EXPECT_EQ(Save(), std::string(1000000, 's') + std::string(48574, 'l') + "\r\n");
}

TEST_F(ReportBufferTest, ALineThatReachesTheCeilingIsDroppedFromBothTextsSilently) {
    report.saveText = Line(std::string(1000000, 's'));
    HostString line = Line(std::string(48575, 'l'));
    ASSERT_EQ(tolvane::AppendReportLine(report, line.Get(), 1), ZM_ERR_NONE);
    EXPECT_EQ(Display(), "");
    EXPECT_EQ(Save(), std::string(1000000, 's'));
    EXPECT_EQ(Text(line.Get()), std::string(48575, 'l'));  // untouched, no line end
    EXPECT_TRUE(runtime.alerts.empty());
}

TEST_F(ReportBufferTest, AShorterLineStillFitsAfterARefusedOne) {
    report.saveText = Line(std::string(1000000, 's'));
    HostString tooLong = Line(std::string(48575, 'l'));
    HostString shorter = Line("ok");
    tolvane::AppendReportLine(report, tooLong.Get(), 1);
    tolvane::AppendReportLine(report, shorter.Get(), 1);
    EXPECT_EQ(Display(), "ok\r\n");
}

// The ceiling counts UTF-16 units: "é" is one unit, though two bytes in UTF-8.
TEST_F(ReportBufferTest, TheCeilingCountsCharactersNotBytes) {
    report.saveText = Line(std::string(1000000, 's'));
    std::string accents;
    for (int i = 0; i < 48574; ++i) {
        accents += "\xC3\xA9";
    }
    HostString line = Line(accents);
    ASSERT_EQ(tolvane::AppendReportLine(report, line.Get(), 0), ZM_ERR_NONE);
    EXPECT_EQ(Display(), accents);
}

TEST_F(ReportBufferTest, ASectionTitleIsFollowedByABlankLineOnlyOnScreen) {
    ASSERT_EQ(tolvane::AppendSectionTitle(report, tolvane::kTitleObjects), ZM_ERR_NONE);
    EXPECT_EQ(Display(), "Objects:\r\n\r\n");
    EXPECT_EQ(Save(), "Objects:\r\n");
}

// Titles 2-4 are fetched by their "/Mac" keys, whose defaults are the long wordings.
TEST_F(ReportBufferTest, TheSpotColourTitleIsTheLongWording) {
    tolvane::AppendSectionTitle(report, tolvane::kTitleSpotColors);
    EXPECT_EQ(Save(), "Spot Color Objects:\r\n");
}

TEST_F(ReportBufferTest, AFailedTitleFetchIsTheTitlesResult) {
    runtime.faults.FailCall(ZM_UNICODE_STRING_SUITE_NAME, 2, ZM_ERR_NO_MEMORY);
    EXPECT_EQ(tolvane::AppendSectionTitle(report, tolvane::kTitleFonts), ZM_ERR_NO_MEMORY);
    EXPECT_EQ(Display(), "");
}

TEST_F(ReportBufferTest, AFailingAppendIsReturnedAndWhatWasAppendedStays) {
    HostString first = Line("kept");
    tolvane::AppendReportLine(report, first.Get(), 1);
    runtime.faults.FailCall(ZM_UNICODE_STRING_SUITE_NAME, 6, ZM_ERR_NO_MEMORY);
    HostString second = Line("lost");
    EXPECT_EQ(tolvane::AppendReportLine(report, second.Get(), 1), ZM_ERR_NO_MEMORY);
    runtime.faults.Clear();
    EXPECT_EQ(Display(), "kept\r\n");
    EXPECT_EQ(Save(), "kept\r\n");
}

// 81 characters: a line end, 77 hyphens, a line end; the save text adds its own line end.
TEST_F(ReportBufferTest, TheSeparatorOpensWithALineEndAndClosesWithTwoInTheFile) {
    tolvane::AppendSeparator(report);
    const std::string hyphens(77, '-');
    EXPECT_EQ(Display(), "\r\n" + hyphens + "\r\n");
    EXPECT_EQ(Save(), "\r\n" + hyphens + "\r\n\r\n");
}

TEST_F(ReportBufferTest, ResetEmptiesBothTexts) {
    HostString line = Line("x");
    tolvane::AppendReportLine(report, line.Get(), 1);
    report.Reset();
    EXPECT_EQ(Display(), "");
    EXPECT_EQ(Save(), "");
}

}  // namespace
