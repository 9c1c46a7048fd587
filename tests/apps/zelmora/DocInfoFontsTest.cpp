#include "support/CommandRun.hpp"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace zm::test {
namespace {

constexpr int kExitDone = 0;

const std::string kInventory = ZELMORA_TEST_FIXTURES "/svg/text/fonts-inventory.svg";

CommandResult Show(const std::string& category, const std::vector<std::string>& options = {}) {
    std::vector<std::string> arguments = {"docinfo", "-q", "--category", category};
    arguments.insert(arguments.end(), options.begin(), options.end());
    arguments.push_back(kInventory);
    return RunCommand(ZELMORA_TEST_COMMAND, arguments);
}

void ExpectShown(const CommandResult& run, const std::string& expected) {
    EXPECT_EQ(run.exitStatus, kExitDone) << run.errors;
    EXPECT_EQ(run.errors, "");
    EXPECT_EQ(run.output, expected);
}

// fonts-inventory.svg uses four fonts in six frames. Each is listed once by its PostScript
// name and type, sorted by that text: "LiberationSans" (TrueType), "NimbusSans-Bold" (OpenType
// CFF), "NimbusSansNarrow-Regular" (its Type 1 program; "-" sorts before "N") and the missing
// "QwertyuiopSans-Bold", named by the host from its family and bold weight. The panel's name
// list: the title and a blank line, then the names one per line, the last without a break.
TEST(DocInfoFontsTest, TheFontsCategoryListsEachFontOnceWithItsType) {
    ExpectShown(Show("fonts"),
                "Fonts:\r\n\r\n"
                "LiberationSans (TrueType)\r\n"
                "NimbusSans-Bold (OTF)\r\n"
                "NimbusSansNarrow-Regular (Type 1)\r\n"
                "QwertyuiopSans-Bold (not installed)");
}

// With full names asked for, Liberation Sans and the Type 1 Nimbus Sans Narrow show theirs;
// NimbusSans-Bold.otf's full name is its PostScript name, and the missing font has none of
// its own. "Nimbus " sorts before "NimbusS" (a blank before "S").
TEST(DocInfoFontsTest, WithAlternateNamesOnFontsWithAFullNameAreListedByIt) {
    ExpectShown(Show("fonts", {"--pref", "fontAlternateNames=true"}),
                "Fonts:\r\n\r\n"
                "Liberation Sans (TrueType)\r\n"
                "Nimbus Sans Narrow (Type 1)\r\n"
                "NimbusSans-Bold (OTF)\r\n"
                "QwertyuiopSans-Bold (not installed)");
}

// One block of eight lines per font, in the order the frames first use them: the missing
// Qwertyuiop Sans Bold, Liberation Sans, Nimbus Sans Bold, Nimbus Sans Narrow. Languages: the
// missing font's script is unknown; Liberation Sans and NimbusSans-Bold.otf declare code page
// 1252 (Roman); a Type 1 program declares no code pages (unknown). Windows names are the
// families. The host knows no tsume kind: "N/A". Every line but the last (the empty line that
// closes the last block) ends in a break.
TEST(DocInfoFontsTest, TheFontDetailsCategoryShowsABlockPerFontInOrderOfUse) {
    ExpectShown(Show("font-details"),
                "Font Details:\r\n\r\n"
                "QwertyuiopSans-Bold\r\n"
                "  PostScript Name: QwertyuiopSans-Bold\r\n"
                "  Windows Font Name: Qwertyuiop Sans\r\n"
                "\r\n"
                "  Language:   Unknown Zelmora Script\r\n"
                "  Font Type:  Not Installed\r\n"
                "  Tsume Type: N/A\r\n"
                "\r\n"
                "LiberationSans\r\n"
                "  PostScript Name: LiberationSans\r\n"
                "  Windows Font Name: Liberation Sans\r\n"
                "\r\n"
                "  Language:   Roman\r\n"
                "  Font Type:  TrueType\r\n"
                "  Tsume Type: N/A\r\n"
                "\r\n"
                "NimbusSans-Bold\r\n"
                "  PostScript Name: NimbusSans-Bold\r\n"
                "  Windows Font Name: Nimbus Sans\r\n"
                "\r\n"
                "  Language:   Roman\r\n"
                "  Font Type:  Open Type Font\r\n"
                "  Tsume Type: N/A\r\n"
                "\r\n"
                "NimbusSansNarrow-Regular\r\n"
                "  PostScript Name: NimbusSansNarrow-Regular\r\n"
                "  Windows Font Name: Nimbus Sans Narrow\r\n"
                "\r\n"
                "  Language:   Unknown Zelmora Script\r\n"
                "  Font Type:  Type 1\r\n"
                "  Tsume Type: N/A\r\n");
}

// The details block always opens with the PostScript name, whatever the list shows.
TEST(DocInfoFontsTest, WithAlternateNamesOnTheDetailsStillOpenWithThePostScriptName) {
    CommandResult run = Show("font-details", {"--pref", "fontAlternateNames=true"});
    EXPECT_EQ(run.exitStatus, kExitDone) << run.errors;
    EXPECT_NE(run.output.find("\r\n\r\nLiberationSans\r\n"), std::string::npos);
    EXPECT_EQ(run.output.find("Liberation Sans (TrueType)"), std::string::npos);
}

// Selecting one frame surveys it alone: only Liberation Sans.
TEST(DocInfoFontsTest, WithASelectionOnlyTheSelectedFramesFontsAreListed) {
    ExpectShown(Show("fonts", {"--select", "liberation2"}),
                "Fonts:\r\n\r\nLiberationSans (TrueType)");
}

// Six point frames; four fonts. The frames' paint is the default black: the style check and
// the frame survey each count it, so twelve RGB objects. No paths: point text has none.
TEST(DocInfoFontsTest, TheObjectsCategoryCountsTheFramesAndTheFonts) {
    CommandResult run = Show("objects");
    EXPECT_EQ(run.exitStatus, kExitDone) << run.errors;
    EXPECT_NE(run.output.find("All Type Objects: 6\r\n"
                              "Point Type Objects: 6\r\n"
                              "Area Type Objects: NONE\r\n"
                              "Type on Path Objects: NONE\r\n"),
              std::string::npos)
        << run.output;
    EXPECT_NE(run.output.find("RGB Objects: 12\r\n"), std::string::npos) << run.output;
    EXPECT_NE(run.output.find("Fonts: 4\r\n"), std::string::npos) << run.output;
}

}  // namespace
}  // namespace zm::test
