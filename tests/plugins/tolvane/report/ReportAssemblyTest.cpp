#include "plugins/tolvane/SurveyFixture.hpp"
#include "plugins/tolvane/report/ExpectedLines.hpp"
#include "plugins/tolvane/report/ExpectedSections.hpp"
#include "support/ReportHeading.hpp"

#include <document/Document.hpp>
#include <report/ReportAssembly.hpp>
#include <survey/SurveyRecord.hpp>
#include <survey/SurveyStringList.hpp>

#include <gtest/gtest.h>

#include <optional>
#include <string>
#include <vector>

namespace zm::test {
namespace {

const std::string kSeparator = "\r\n" + std::string(77, '-') + "\r\n";

// An empty list: its title, a blank line on screen, then "NONE".
std::vector<Line> EmptyList(const std::string& title) { return {{title, 2}, {"NONE", 1}}; }

// The nine list sections in the report's order, after Document and Objects.
const std::vector<std::string> kListTitles = {
    "Graphic Styles:",  "Brushes:",      "Spot Color Objects:",
    "Pattern Objects:", "Gradient Objects:", "Fonts:",
    "Linked Images:",   "Embedded Images:",  "Font Details:"};

// The separator is appended as one line with no break on screen; every section follows one.
struct Expected {
    std::string displayed;
    std::string saved;

    void Separator() {
        displayed += kSeparator;
        saved += kSeparator + "\r\n";
    }
    void Section(const std::vector<Line>& lines) {
        Separator();
        displayed += Displayed(lines);
        saved += Saved(lines);
    }
};

class ReportAssemblyTest : public SurveyFixture {
protected:
    // The texts go back to the host while its suites are still held.
    void TearDown() override {
        report = tolvane::ReportText{};
        SurveyFixture::TearDown();
    }

    void OpenEmptyDocument() {
        auto document = std::make_unique<host::document::Document>();
        document->rulerUnits = host::document::RulerUnits::Points;
        Open(std::move(document));
    }

    // The heading's date is the clock's: its form is checked, then it is cut off so the rest
    // can be compared byte for byte. asctime writes "Www Mmm dd hh:mm:ss yyyy\n" (24
    // characters and its own line end); the heading adds "\r\n" and the file one more.
    static std::string WithoutHeading(const std::string& text, const std::string& after) {
        std::optional<std::string> rest = AfterReportHeading(text, after);
        if (!rest) {
            ADD_FAILURE() << "no heading of the expected form in: " << text.substr(0, 60);
            return {};
        }
        return *rest;
    }

    tolvane::ReportText report;
};

TEST_F(ReportAssemblyTest, ADocumentWithNothingInItStillListsEveryTitleWithNone) {
    OpenEmptyDocument();
    ASSERT_EQ(tolvane::AssembleReport(report), ZM_ERR_NONE);

    Expected expected;
    expected.Section(NewDocumentSectionInPoints());
    expected.Section(EmptyObjectsSection());
    for (const std::string& title : kListTitles) {
        expected.Section(EmptyList(title));
    }
    // The closing pair of line ends, appended with no break on screen.
    expected.displayed += "\r\n\r\n";
    expected.saved += "\r\n\r\n\r\n";

    // On screen the heading has no break of its own; in the file it gets one.
    EXPECT_EQ(WithoutHeading(Text(report.displayText.Get()), ""), expected.displayed);
    EXPECT_EQ(WithoutHeading(Text(report.saveText.Get()), "\r\n"), expected.saved);
}

TEST_F(ReportAssemblyTest, TheSelectionReportCarriesTheSameHeading) {
    OpenEmptyDocument();
    globals.selectionOnly = 1;
    ASSERT_EQ(tolvane::AssembleReport(report), ZM_ERR_NONE);
    // "Document Info", never "Selection Info".
    EXPECT_NE(WithoutHeading(Text(report.saveText.Get()), "\r\n" + kSeparator), "");
}

TEST_F(ReportAssemblyTest, AFailingSectionStopsTheReportWithWhatCameBefore) {
    // Without a document the Document section writes its title and fails; nothing follows.
    ASSERT_EQ(tolvane::AssembleReport(report), ZM_ERR_NO_DOCUMENT);
    Expected expected;
    expected.Section({{"Document:", 2}});
    EXPECT_EQ(WithoutHeading(Text(report.saveText.Get()), "\r\n"), expected.saved);
    EXPECT_EQ(WithoutHeading(Text(report.displayText.Get()), ""), expected.displayed);
}

TEST_F(ReportAssemblyTest, TheReportIsAppendedToWhatTheTextsHold) {
    OpenEmptyDocument();
    report.saveText = tolvane::MakeUnicodeFromBytes("kept", ZM_ENCODING_PLATFORM);
    ASSERT_EQ(tolvane::AssembleReport(report), ZM_ERR_NONE);
    EXPECT_EQ(Text(report.saveText.Get()).rfind("keptDocument Info - ", 0), 0u);
}

// 1,100 font details of 1,000 characters each cannot all fit under the 1,048,576-character
// ceiling: the lines that would reach it are left out without a word, every line that is
// there is whole, and the short closing line still fits after them.
TEST_F(ReportAssemblyTest, AReportOverTheCeilingKeepsTheWholeLinesThatFit) {
    OpenEmptyDocument();
    const std::string detail(1000, 'x');
    for (int i = 0; i < 1100; ++i) {
        tolvane::HostString text = tolvane::MakeUnicodeFromBytes(detail.c_str(), ZM_ENCODING_UTF8);
        ASSERT_EQ(tolvane::LinkStrAppend(tolvane::gSurvey->lists.fontDetailList, text.Get(), true),
                  ZM_ERR_NONE);
    }
    ASSERT_EQ(tolvane::AssembleReport(report), ZM_ERR_NONE);
    const std::string saved = Text(report.saveText.Get());
    EXPECT_LT(saved.size(), 0x100000u);

    const std::string title = "\r\nFont Details:\r\n";
    const std::size_t start = saved.find(title);
    ASSERT_NE(start, std::string::npos);
    // Each detail but the last is followed by its own "\r\n" and the file's.
    std::size_t at = start + title.size();
    int whole = 0;
    while (saved.compare(at, detail.size() + 4, detail + "\r\n\r\n") == 0) {
        at += detail.size() + 4;
        ++whole;
    }
    EXPECT_GT(whole, 900);
    EXPECT_LT(whole, 1100);
    EXPECT_EQ(saved.substr(at), "\r\n\r\n\r\n");
}

}  // namespace
}  // namespace zm::test
