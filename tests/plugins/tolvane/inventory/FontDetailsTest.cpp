#include "plugins/tolvane/inventory/FontInventoryFixture.hpp"
#include "plugins/tolvane/inventory/StandInFontSuites.hpp"

#include <inventory/FontInventory.hpp>

#include <gtest/gtest.h>

#include <string>
#include <vector>

// Literals in this file are UTF-8.
namespace {

using Texts = std::vector<std::string>;
using zm::test::DetailBlock;

// Entries of the font suite.
constexpr int32_t kGetPostScriptName = 2;
constexpr int32_t kGetWindowsName = 4;

class FontDetailsTest : public zm::test::FontInventoryFixture {
protected:
    Texts Details(ZMFontKey key) {
        tolvane::AddFontDetails(key);
        return DetailLines();
    }

    // A hand-made record of an installed TrueType font (whose type needs no design axes)
    // with the script and tsume kind a test gives, and the Windows name's bytes.
    Texts DetailsOfRecord(int32_t script, const std::string& windowsName, int32_t tsume = 0) {
        ZMFontInfo info{};
        info.installed = 1;
        info.technology = ZM_FONT_TECHNOLOGY_TRUETYPE;
        info.script = script;
        info.tsumeKind = tsume;
        zm::test::StandInFontSuite fonts(info, windowsName);
        return Details(Key("Liberation Sans"));
    }

    // The line of a block that names the language.
    std::string LanguageOfScript(int32_t script) {
        ResetLists();
        return DetailsOfRecord(script, "Name").at(4);
    }

    void ResetLists() { tolvane::ResetSurvey(true); }
};

// Liberation Sans declares code page 1252 (bit 0 of its OS/2 code-page range): Roman. Its
// Windows family name is "Liberation Sans"; the host knows no tsume kind.
TEST_F(FontDetailsTest, ATrueTypeFontsBlock) {
    EXPECT_EQ(Details(Key("Liberation Sans")), DetailBlock("LiberationSans", "LiberationSans",
                                                           "Liberation Sans", "Roman", "TrueType"));
}

// NimbusSans-Bold.otf: family "Nimbus Sans" in its name table, code page 1252 declared.
TEST_F(FontDetailsTest, AnOpenTypeCffFontsBlock) {
    EXPECT_EQ(Details(Key("Nimbus Sans", 700)),
              DetailBlock("NimbusSans-Bold", "NimbusSans-Bold", "Nimbus Sans", "Roman",
                          "Open Type Font"));
}

// A Type 1 program has no OS/2 table, so no code pages: the script is unknown. Its family is
// the FamilyName of the program.
TEST_F(FontDetailsTest, AType1FontsBlock) {
    EXPECT_EQ(Details(Key("Nimbus Sans Narrow")),
              DetailBlock("NimbusSansNarrow-Regular", "NimbusSansNarrow-Regular",
                          "Nimbus Sans Narrow", "Unknown Zelmora Script", "Type 1"));
}

// The host still names a missing font, so its block keeps the names; only the type says it
// is missing. Its script is unknown.
TEST_F(FontDetailsTest, AFontThatIsNotInstalledIsOfTypeNotInstalled) {
    EXPECT_EQ(Details(Key("Qwertyuiop Sans", 700)),
              DetailBlock("QwertyuiopSans-Bold", "QwertyuiopSans-Bold", "Qwertyuiop Sans",
                          "Unknown Zelmora Script", "Not Installed"));
}

// Nothing written into the PostScript name's buffer: both lines say so.
TEST_F(FontDetailsTest, AFontWithoutAPostScriptNameIsNotInstalledByName) {
    ZMFontKey key = Key("Liberation Sans");
    runtime.faults.FailCall(ZM_FONT_SUITE_NAME, kGetPostScriptName, ZM_ERR_INTERNAL);
    EXPECT_EQ(Details(key), DetailBlock("NOT Installed.", "NOT Installed.", "Liberation Sans",
                                        "Roman", "TrueType"));
}

// A failing Windows name query leaves its text empty.
TEST_F(FontDetailsTest, AWindowsNameThatCannotBeHadIsEmpty) {
    ZMFontKey key = Key("Liberation Sans");
    runtime.faults.FailCall(ZM_FONT_SUITE_NAME, kGetWindowsName, ZM_ERR_INTERNAL);
    EXPECT_EQ(Details(key).at(2), "  Windows Font Name: ");
}

// The missing "Café Sans": its PostScript name comes in UTF-8 and its Windows name in
// windows-1252 (the code page of an unknown script); both reach the list as "é".
TEST_F(FontDetailsTest, NamesKeepTheirAccentedLetters) {
    Texts lines = Details(Key("Café Sans"));
    EXPECT_EQ(lines.at(0), "CaféSans");
    EXPECT_EQ(lines.at(1), "  PostScript Name: CaféSans");
    EXPECT_EQ(lines.at(2), "  Windows Font Name: Café Sans");
}

// The block is made in windows-1252: each character it cannot hold is one "?".
TEST_F(FontDetailsTest, ACharacterTheBlocksEncodingCannotHoldBecomesAQuestionMark) {
    Texts lines = Details(Key("日本 Sans"));
    EXPECT_EQ(lines.at(0), "??Sans");
    EXPECT_EQ(lines.at(2), "  Windows Font Name: ?? Sans");
}

// Every script the table names, and 4, which it does not.
TEST_F(FontDetailsTest, TheLanguageFollowsTheScript) {
    EXPECT_EQ(LanguageOfScript(-2), "  Language:   Native Zelmora Script");
    EXPECT_EQ(LanguageOfScript(-1), "  Language:   Unknown Zelmora Script");
    EXPECT_EQ(LanguageOfScript(0), "  Language:   Roman");
    EXPECT_EQ(LanguageOfScript(1), "  Language:   Japanese");
    EXPECT_EQ(LanguageOfScript(2), "  Language:   Traditional Chinese");
    EXPECT_EQ(LanguageOfScript(3), "  Language:   Korean");
    EXPECT_EQ(LanguageOfScript(7), "  Language:   Cyrillic Zelmora Script");
    EXPECT_EQ(LanguageOfScript(25), "  Language:   Simplified Chinese");
    EXPECT_EQ(LanguageOfScript(29), "  Language:   East European Roman Zelmora Script");
    EXPECT_EQ(LanguageOfScript(32), "  Language:   Symbol Zelmora Script");
    EXPECT_EQ(LanguageOfScript(4), "  Language:   Unknown language");
}

// The Windows name's bytes are read in the script's code page, then written into the
// windows-1252 block. "Łódź" in windows-1250 is A3 F3 64 9F: read right, Ł and ź are not
// in windows-1252 ("?ód?"); read as windows-1252 the bytes would be "£ódŸ".
TEST_F(FontDetailsTest, ACentralEuropeanWindowsNameIsReadInWindows1250) {
    EXPECT_EQ(DetailsOfRecord(29, "\xA3\xF3\x64\x9F").at(2), "  Windows Font Name: ?ód?");
}

// "Привет" in windows-1251 is CF F0 E8 E2 E5 F2: six letters windows-1252 lacks. Read as
// windows-1252 they would be "Ïðèâåò".
TEST_F(FontDetailsTest, ACyrillicWindowsNameIsReadInWindows1251) {
    EXPECT_EQ(DetailsOfRecord(7, "\xCF\xF0\xE8\xE2\xE5\xF2").at(2), "  Windows Font Name: ??????");
}

// 日本 in Shift_JIS is 93 FA 96 7B: two characters, so two "?". Read byte by byte as
// windows-1252 they would be four characters, the last a "{".
TEST_F(FontDetailsTest, AJapaneseWindowsNameIsReadInShiftJis) {
    EXPECT_EQ(DetailsOfRecord(1, "\x93\xFA\x96\x7B").at(2), "  Windows Font Name: ??");
}

// The symbol script's names are read in the platform encoding: E9 is "é".
TEST_F(FontDetailsTest, ASymbolFontsWindowsNameIsReadInThePlatformEncoding) {
    EXPECT_EQ(DetailsOfRecord(32, "Caf\xE9").at(2), "  Windows Font Name: Café");
}

TEST_F(FontDetailsTest, TheTsumeKindIsNamed) {
    EXPECT_EQ(DetailsOfRecord(0, "Name", 1).at(6), "  Tsume Type: GX TrueType");
    ResetLists();
    EXPECT_EQ(DetailsOfRecord(0, "Name", 2).at(6), "  Tsume Type: Folionix-J Tsume");
    ResetLists();
    EXPECT_EQ(DetailsOfRecord(0, "Name", 3).at(6), "  Tsume Type: CID");
    ResetLists();
    EXPECT_EQ(DetailsOfRecord(0, "Name", 4).at(6), "  Tsume Type: N/A");
}

// Blocks are appended, repeats and all: the list keeps lines, not fonts.
TEST_F(FontDetailsTest, BlocksAreAppendedWithTheirRepeatedLines) {
    ZMFontKey key = Key("Liberation Sans");
    tolvane::AddFontDetails(key);
    tolvane::AddFontDetails(key);
    Texts block =
        DetailBlock("LiberationSans", "LiberationSans", "Liberation Sans", "Roman", "TrueType");
    Texts twice = block;
    twice.insert(twice.end(), block.begin(), block.end());
    EXPECT_EQ(DetailLines(), twice);
}

// A format whose first line is 230 characters: the first 200 are one line; the break steps
// over two more ("ab" of the 30 left), and the other 28 are the next line.
TEST_F(FontDetailsTest, ALineLongerThan200CharactersIsBrokenAndLosesTwoCharacters) {
    std::string first(200, 'x');
    runtime.localizer.AddTranslation("$$$/Tolvane/Str/ResFontDetail/10/Win",
                                     first + "ab" + std::string(28, 'y') + "\r\n%s %s %s %s %s %s");
    Texts lines = Details(Key("Liberation Sans"));
    ASSERT_EQ(lines.size(), 3u);
    EXPECT_EQ(lines[0], first);
    EXPECT_EQ(lines[1], std::string(28, 'y'));
    EXPECT_EQ(lines[2], "LiberationSans LiberationSans Liberation Sans Roman TrueType N/A");
}

// Three lines of 160 characters and their breaks take 486 of the 499 characters the buffer
// holds before its NUL: 13 are left, "LiberationSan" of the first name.
TEST_F(FontDetailsTest, ABlockIsCutAt499Characters) {
    std::string filler;
    for (char letter : {'a', 'b', 'c'}) {
        filler += std::string(160, letter) + "\r\n";
    }
    runtime.localizer.AddTranslation("$$$/Tolvane/Str/ResFontDetail/10/Win",
                                     filler + "%s %s %s %s %s %s");
    Texts lines = Details(Key("Liberation Sans"));
    ASSERT_EQ(lines.size(), 4u);
    EXPECT_EQ(lines[2], std::string(160, 'c'));
    EXPECT_EQ(lines[3], "LiberationSan");
}

// The second of the eight lines is the second node asked for; the alert is shown and the
// other seven lines are still listed.
TEST_F(FontDetailsTest, ALineTheListCannotTakeIsAlertedAndSkipped) {
    ZMFontKey key = Key("Liberation Sans");
    runtime.faults.FailAllocation(2);
    tolvane::AddFontDetails(key);
    Texts expected =
        DetailBlock("LiberationSans", "LiberationSans", "Liberation Sans", "Roman", "TrueType");
    expected.erase(expected.begin() + 1);
    EXPECT_EQ(DetailLines(), expected);
    EXPECT_EQ(AlertTexts(), (Texts{OutOfMemoryAlert("ID =   AddFont:LinkStrAdd")}));
}

}  // namespace
