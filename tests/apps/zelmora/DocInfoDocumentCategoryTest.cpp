#include "support/CommandRun.hpp"

#include <gtest/gtest.h>

#include <filesystem>
#include <string>
#include <vector>

namespace zm::test {
namespace {

namespace fs = std::filesystem;

constexpr int kExitDone = 0;

const std::string kFixtures = ZELMORA_TEST_FIXTURES "/svg/docinfo/";

// The lines of the Document section after its Name line, as the panel shows them. Each
// default is what a 100 x 50 px RGB document without any setting shows.
struct DocumentLines {
    std::string colorMode = "RGB color";
    std::string profile = "none";  // no <color-profile>: no profile handle
    std::string units = "Pixels";  // the plural name of the ruler units
    std::string dimensions = "100 px x 50 px";
    std::string outline = "OFF";
    std::string highlightFonts = "OFF";
    std::string highlightGlyphs = "OFF";
    // No "ZM11 Preserve Text Editability" key: editability is assumed.
    std::string textLine = "Preserve Text Editability";
    std::string paper = "OFF";  // no "ZM9 paper simulation" key
};

// The title and the Name line are followed by a blank line on screen, every other line by a
// single line end. Labels whose text ends in a blank take their value directly; the others
// get one blank first.
std::string SectionText(const std::string& path, const DocumentLines& lines) {
    std::string text = "Document:\r\n\r\n";
    text += "Name: " + path + "\r\n\r\n";
    text += "Color Mode: " + lines.colorMode + "\r\n";
    text += "Color Profile: " + lines.profile + "\r\n";
    text += "Ruler Units: " + lines.units + "\r\n";
    text += "Artboard Dimensions: " + lines.dimensions + "\r\n";
    text += "Show Images in Outline Mode: " + lines.outline + "\r\n";
    text += "Highlight Substituted Fonts: " + lines.highlightFonts + "\r\n";
    text += "Highlight Substituted Glyphs: " + lines.highlightGlyphs + "\r\n";
    text += lines.textLine + "\r\n";
    text += "Simulate Colored Paper: " + lines.paper + "\r\n";
    return text;
}

CommandResult DocumentCategory(const std::string& file, std::vector<std::string> options = {}) {
    std::vector<std::string> arguments = {"docinfo", "--category", "document", "-q"};
    arguments.insert(arguments.end(), options.begin(), options.end());
    arguments.push_back(file);
    return RunCommand(ZELMORA_TEST_COMMAND, arguments);
}

void ExpectSection(const std::string& fixture, const DocumentLines& lines,
                   std::vector<std::string> options = {}) {
    const std::string file = kFixtures + fixture;
    CommandResult run = DocumentCategory(file, std::move(options));
    EXPECT_EQ(run.exitStatus, kExitDone) << run.errors;
    EXPECT_EQ(run.errors, "");
    // The fixture folder's path is absolute and clean already, so it is its own display form.
    EXPECT_EQ(run.output, SectionText(file, lines));
}

TEST(DocInfoDocumentCategoryTest, ADocumentWithoutSettingsShowsEveryDefault) {
    ExpectSection("no-settings.svg", {});
}

TEST(DocInfoDocumentCategoryTest, ACmykDocumentWithoutAProfileShowsNone) {
    DocumentLines lines;
    lines.colorMode = "CMYK color";
    lines.profile = "none";  // the CMYK profile handle is null
    ExpectSection("cmyk-no-profile.svg", lines);
}

TEST(DocInfoDocumentCategoryTest, AGrayDocumentWithoutAProfileShowsNone) {
    DocumentLines lines;
    lines.colorMode = "gray color";
    lines.profile = "none";  // the gray profile handle is null
    ExpectSection("gray-no-profile.svg", lines);
}

TEST(DocInfoDocumentCategoryTest, AnUnknownColourModelShowsUnknownColorAndNoProfile) {
    DocumentLines lines;
    lines.colorMode = "Unknown color";  // "lab" is none of gray, RGB and CMYK
    lines.profile = "none";             // no profile is picked for such a model
    ExpectSection("unknown-color-model.svg", lines);
}

TEST(DocInfoDocumentCategoryTest, BothDictionarySettingsTheOtherWayRound) {
    DocumentLines lines;
    lines.textLine = "Preserve Text Appearance";  // editability off: the other bare text
    lines.paper = "ON";
    ExpectSection("settings-reversed.svg", lines);
}

TEST(DocInfoDocumentCategoryTest, OutlineImagesAndBothHighlightsOn) {
    DocumentLines lines;
    lines.outline = "ON";
    lines.highlightFonts = "ON";
    lines.highlightGlyphs = "ON";
    ExpectSection("view-flags-on.svg", lines);
}

TEST(DocInfoDocumentCategoryTest, AMillimetreDocumentMeasuresInMillimetres) {
    DocumentLines lines;
    lines.units = "Millimeters";  // the unit of the root's width
    // 215.9 mm = 8.5 in = 612 pt and 279.4 mm = 11 in = 792 pt, shown back in millimetres
    // with at most three decimals, trailing zeros dropped.
    lines.dimensions = "215.9 mm x 279.4 mm";
    ExpectSection("letter-millimetres.svg", lines);
}

TEST(DocInfoDocumentCategoryTest, APointDocumentMeasuresInPoints) {
    DocumentLines lines;
    lines.units = "Points";
    lines.dimensions = "612 pt x 792 pt";  // whole numbers: no decimals at all
    ExpectSection("letter-points.svg", lines);
}

TEST(DocInfoDocumentCategoryTest, AGermanLocaleWritesLengthsWithADecimalComma) {
    DocumentLines lines;
    // The host has no German texts for the plug-in's labels or the units' names, so they stay
    // in their default wording; lengths follow the locale's decimal mark.
    lines.units = "Millimeters";
    lines.dimensions = "215,9 mm x 279,4 mm";
    ExpectSection("letter-millimetres.svg", lines, {"--locale", "de-DE"});
}

TEST(DocInfoDocumentCategoryTest, TheNameIsTheCleanAbsolutePath) {
    // "." and ".." parts are resolved away in the display form.
    CommandResult run =
        DocumentCategory(ZELMORA_TEST_FIXTURES "/svg/./docinfo/../docinfo/no-settings.svg");
    EXPECT_EQ(run.exitStatus, kExitDone) << run.errors;
    EXPECT_EQ(run.output, SectionText(kFixtures + "no-settings.svg", {}));
}

TEST(DocInfoDocumentCategoryTest, ARelativePathIsShownAbsolute) {
    // The command runs in this process's folder, so the path is relative to that.
    const fs::path file = fs::path(kFixtures + "no-settings.svg");
    const fs::path relative = fs::relative(file, fs::current_path());
    ASSERT_TRUE(relative.is_relative());
    CommandResult run = DocumentCategory(relative.string());
    EXPECT_EQ(run.exitStatus, kExitDone) << run.errors;
    EXPECT_EQ(run.output, SectionText(file.string(), {}));
}

TEST(DocInfoDocumentCategoryTest, SelectingLeavesTheDocumentSectionAsItIs) {
    // The Document section reads the document's settings, not its art: a selection does not
    // change it. The docinfo fixtures hold no elements, so this selects in one that has.
    const std::string file = ZELMORA_TEST_FIXTURES "/svg/shapes.svg";
    CommandResult plain = DocumentCategory(file);
    ASSERT_EQ(plain.exitStatus, kExitDone) << plain.errors;
    ASSERT_EQ(plain.output.rfind("Document:\r\n\r\nName: " + file + "\r\n\r\n", 0), 0u)
        << plain.output;
    CommandResult selected = DocumentCategory(file, {"--select", "rect"});
    EXPECT_EQ(selected.exitStatus, kExitDone) << selected.errors;
    EXPECT_EQ(selected.output, plain.output);
}

}  // namespace
}  // namespace zm::test
