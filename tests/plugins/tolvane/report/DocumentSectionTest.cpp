#include "plugins/tolvane/PluginUnitFixture.hpp"
#include "plugins/tolvane/report/ExpectedLines.hpp"
#include "plugins/tolvane/report/ExpectedSections.hpp"

#include <importers/svg/SvgImporter.hpp>
#include <report/DocumentSection.hpp>

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

namespace {

using zm::host::document::Document;
using zm::host::document::RulerUnits;
using zm::test::Displayed;
using zm::test::Line;
using zm::test::Saved;

// The title (a blank line after it on screen), then one line each; the Name line, when there
// is one, also has a blank line after it on screen.
const Line kTitle{"Document:", 2};

// A new document's settings: RGB, no profile, pixels, US Letter (612 x 792 pt), images not
// shown in outline mode, no highlighting, an empty dictionary.
std::unique_ptr<Document> NewDocument() { return std::make_unique<Document>(); }

class DocumentSectionTest : public zm::test::PluginUnitFixture {
protected:
    // The texts go back to the host while its suites are still held.
    void TearDown() override {
        report = tolvane::ReportText{};
        PluginUnitFixture::TearDown();
    }

    ZMErr Write() { return tolvane::AppendDocumentSection(report); }

    void ExpectLines(const std::vector<Line>& lines) {
        EXPECT_EQ(Text(report.displayText.Get()), Displayed(lines));
        EXPECT_EQ(Text(report.saveText.Get()), Saved(lines));
    }

    tolvane::ReportText report;
};

// Untitled: no Name line. Points: 612 pt = 612, 792 pt = 792, nothing to drop.
TEST_F(DocumentSectionTest, AnUntitledDocumentOpensWithTheColorModeAfterTheTitle) {
    auto document = NewDocument();
    document->rulerUnits = RulerUnits::Points;
    Open(std::move(document));
    ASSERT_EQ(Write(), ZM_ERR_NONE);
    ExpectLines(zm::test::NewDocumentSectionInPoints());
}

// The path is absolute already, so its full display string is the path itself. The Name
// line has a blank line after it on screen.
TEST_F(DocumentSectionTest, ADocumentWithAFileShowsItsFullPathFollowedByABlankLine) {
    auto document = NewDocument();
    document->filePath = "/work/posters/summer.svg";
    document->rulerUnits = RulerUnits::Points;
    Open(std::move(document));
    ASSERT_EQ(Write(), ZM_ERR_NONE);
    std::vector<Line> lines = {kTitle, {"Name: /work/posters/summer.svg", 2}};
    EXPECT_EQ(Text(report.displayText.Get()).substr(0, Displayed(lines).size()),
              Displayed(lines));
    EXPECT_EQ(Text(report.saveText.Get()).substr(0, Saved(lines).size()), Saved(lines));
}

TEST_F(DocumentSectionTest, ACmykDocumentWithoutACmykProfileShowsNone) {
    auto document = NewDocument();
    document->colorModel = zm::host::document::kColorModelCmyk;
    document->rgbProfile = "sRGB IEC61966-2.1";  // a profile, but not the CMYK one
    Open(std::move(document));
    ASSERT_EQ(Write(), ZM_ERR_NONE);
    std::string saved = Text(report.saveText.Get());
    EXPECT_NE(saved.find("Color Mode: CMYK color\r\nColor Profile: none\r\n"), std::string::npos)
        << saved;
}

// Model 7 is none of gray, RGB and CMYK: its name is "Unknown color" and no profile is
// picked, whatever profiles the document has.
TEST_F(DocumentSectionTest, AnUnexpectedColorModelIsUnknownWithNoProfile) {
    auto document = NewDocument();
    document->colorModel = 7;
    document->rgbProfile = "sRGB IEC61966-2.1";
    document->cmykProfile = "Coated FOGRA39";
    document->grayProfile = "Dot Gain 20%";
    Open(std::move(document));
    ASSERT_EQ(Write(), ZM_ERR_NONE);
    std::string saved = Text(report.saveText.Get());
    EXPECT_NE(saved.find("Color Mode: Unknown color\r\nColor Profile: none\r\n"),
              std::string::npos)
        << saved;
}

TEST_F(DocumentSectionTest, TheProfileOfTheDocumentsModelIsNamed) {
    auto document = NewDocument();
    document->colorModel = zm::host::document::kColorModelGray;
    document->rgbProfile = "sRGB IEC61966-2.1";
    document->grayProfile = "Dot Gain 20%";
    Open(std::move(document));
    ASSERT_EQ(Write(), ZM_ERR_NONE);
    std::string saved = Text(report.saveText.Get());
    EXPECT_NE(saved.find("Color Mode: gray color\r\nColor Profile: Dot Gain 20%\r\n"),
              std::string::npos)
        << saved;
}

// 612 pt / (72 / 25.4) = 215.9 mm and 792 pt = 279.4 mm, trailing zeros dropped.
TEST_F(DocumentSectionTest, AMillimetreDocumentShowsItsUnitAndDimensionsInMillimetres) {
    auto document = NewDocument();
    document->rulerUnits = RulerUnits::Millimeters;
    Open(std::move(document));
    ASSERT_EQ(Write(), ZM_ERR_NONE);
    std::string saved = Text(report.saveText.Get());
    EXPECT_NE(saved.find("Ruler Units: Millimeters\r\n"
                         "Artboard Dimensions: 215.9 mm x 279.4 mm\r\n"),
              std::string::npos)
        << saved;
}

// The dictionary says false for text editability and true for paper simulation; the setup
// and the text resources turn the other three settings on.
TEST_F(DocumentSectionTest, SettingsThatAreOnShowOnAndTextAppearance) {
    auto document = NewDocument();
    document->rulerUnits = RulerUnits::Points;
    document->setup.showPlacedImages = true;
    document->highlightSubstitutedFonts = true;
    document->highlightSubstitutedGlyphs = true;
    document->dictionary[zm::host::document::kPreserveTextEditabilityKey] = false;
    document->dictionary[zm::host::document::kPaperSimulationKey] = true;
    Open(std::move(document));
    ASSERT_EQ(Write(), ZM_ERR_NONE);
    ExpectLines({kTitle,
                 {"Color Mode: RGB color", 1},
                 {"Color Profile: none", 1},
                 {"Ruler Units: Points", 1},
                 {"Artboard Dimensions: 612 pt x 792 pt", 1},
                 {"Show Images in Outline Mode: ON", 1},
                 {"Highlight Substituted Fonts: ON", 1},
                 {"Highlight Substituted Glyphs: ON", 1},
                 {"Preserve Text Appearance", 1},
                 {"Simulate Colored Paper: ON", 1}});
}

// A dictionary that cannot be had counts as one without the keys: the defaults.
TEST_F(DocumentSectionTest, ADictionaryFailureFallsBackToTheDefaults) {
    auto document = NewDocument();
    document->dictionary[zm::host::document::kPreserveTextEditabilityKey] = false;
    document->dictionary[zm::host::document::kPaperSimulationKey] = true;
    Open(std::move(document));
    runtime.faults.FailCall(ZM_DOCUMENT_SUITE_NAME, 10, ZM_ERR_NO_MEMORY);
    ASSERT_EQ(Write(), ZM_ERR_NONE);
    std::string saved = Text(report.saveText.Get());
    EXPECT_NE(saved.find("Preserve Text Editability\r\nSimulate Colored Paper: OFF\r\n"),
              std::string::npos)
        << saved;
}

TEST_F(DocumentSectionTest, ADictionaryWithOtherKeysKeepsTheDefaults) {
    auto document = NewDocument();
    document->dictionary["ZM11 Something Else"] = false;
    Open(std::move(document));
    ASSERT_EQ(Write(), ZM_ERR_NONE);
    std::string saved = Text(report.saveText.Get());
    EXPECT_NE(saved.find("Preserve Text Editability\r\nSimulate Colored Paper: OFF\r\n"),
              std::string::npos)
        << saved;
}

// Each call the section cannot do without ends it with its code; the lines before stay.
struct StopCase {
    int32_t entry;  // of "ZM Document Suite"
    std::vector<Line> lines;
};

class DocumentSectionStopTest : public DocumentSectionTest,
                                public ::testing::WithParamInterface<StopCase> {};

TEST_P(DocumentSectionStopTest, AFailingCallStopsTheSectionWithItsCode) {
    auto document = NewDocument();
    document->rulerUnits = RulerUnits::Points;
    Open(std::move(document));
    runtime.faults.FailCall(ZM_DOCUMENT_SUITE_NAME, GetParam().entry, ZM_ERR_INTERNAL);
    EXPECT_EQ(Write(), ZM_ERR_INTERNAL);
    runtime.faults.Clear();
    ExpectLines(GetParam().lines);
}

INSTANTIATE_TEST_SUITE_P(
    Steps, DocumentSectionStopTest,
    ::testing::Values(
        StopCase{3, {kTitle}},                                       // colour model
        StopCase{4, {kTitle, {"Color Mode: RGB color", 1}}},         // profiles
        StopCase{5,                                                  // setup
                 {kTitle,
                  {"Color Mode: RGB color", 1},
                  {"Color Profile: none", 1},
                  {"Ruler Units: Points", 1}}},
        StopCase{7,                                                  // text resources
                 {kTitle,
                  {"Color Mode: RGB color", 1},
                  {"Color Profile: none", 1},
                  {"Ruler Units: Points", 1},
                  {"Artboard Dimensions: 612 pt x 792 pt", 1},
                  {"Show Images in Outline Mode: OFF", 1}}}));

TEST_F(DocumentSectionTest, WithoutADocumentOnlyTheTitleIsWritten) {
    EXPECT_EQ(Write(), ZM_ERR_NO_DOCUMENT);
    ExpectLines({kTitle});
}

// An A4 page in millimetres, CMYK, no colour profile declared, from an SVG file: 210 mm and
// 297 mm come back as they were written.
TEST_F(DocumentSectionTest, AnImportedA4CmykDocument) {
    const char* svg =
        R"(<svg xmlns="http://www.w3.org/2000/svg" xmlns:zm="https://zelmora.example/ns/1.0" )"
        R"(width="210mm" height="297mm" viewBox="0 0 210 297" zm:color-model="cmyk" )"
        R"(zm:paper-simulation="true"><rect width="10" height="10"/></svg>)";
    Open(zm::host::ImportSvgText(svg, "/work/posters/a4.svg"));
    ASSERT_EQ(Write(), ZM_ERR_NONE);
    ExpectLines({kTitle,
                 {"Name: /work/posters/a4.svg", 2},
                 {"Color Mode: CMYK color", 1},
                 {"Color Profile: none", 1},
                 {"Ruler Units: Millimeters", 1},
                 {"Artboard Dimensions: 210 mm x 297 mm", 1},
                 {"Show Images in Outline Mode: OFF", 1},
                 {"Highlight Substituted Fonts: OFF", 1},
                 {"Highlight Substituted Glyphs: OFF", 1},
                 {"Preserve Text Editability", 1},
                 {"Simulate Colored Paper: ON", 1}});
}

}  // namespace
