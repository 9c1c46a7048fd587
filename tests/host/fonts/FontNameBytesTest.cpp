#include <fonts/FontNameBytes.hpp>

#include <gtest/gtest.h>

#include <string>

namespace zm::host::fonts {
namespace {

TEST(FontNameBytesTest, EachScriptHasItsWindowsCodePage) {
    EXPECT_STREQ(WindowsCodePage(0), "windows-1252");
    EXPECT_STREQ(WindowsCodePage(1), "Shift_JIS");
    EXPECT_STREQ(WindowsCodePage(7), "windows-1251");
    EXPECT_STREQ(WindowsCodePage(29), "windows-1250");
    EXPECT_STREQ(WindowsCodePage(-1), "windows-1252");  // unknown: the platform's code page
    EXPECT_STREQ(WindowsCodePage(32), "windows-1252");  // symbol fonts have none of their own
}

TEST(FontNameBytesTest, AUtf8NameIsCutAfterItsLastWholeCharacter) {
    // "Café" is C, a, f (one byte each) and é (two bytes): four bytes hold only "Caf".
    EXPECT_EQ(FontNameBytes("Caf\xC3\xA9", "UTF-8", 4), "Caf");
    EXPECT_EQ(FontNameBytes("Caf\xC3\xA9", "UTF-8", 5), "Caf\xC3\xA9");
}

TEST(FontNameBytesTest, AWindowsCodePageHoldsItsOwnCharactersAndQuestionMarksForOthers) {
    EXPECT_EQ(FontNameBytes("Caf\xC3\xA9", "windows-1252", 63), "Caf\xE9");  // é is 0xE9
    EXPECT_EQ(FontNameBytes("\xD0\x96", "windows-1252", 63), "?");           // Ж is not there
    EXPECT_EQ(FontNameBytes("\xD0\x96", "windows-1251", 63), "\xC6");        // Ж is 0xC6 there
}

TEST(FontNameBytesTest, ADoubleByteCharacterIsNeverSplit) {
    // "ゴシ" in Shift_JIS is two characters of two bytes each; five bytes hold both, three
    // only the first.
    const std::string gothic = "\xE3\x82\xB4\xE3\x82\xB7";
    EXPECT_EQ(FontNameBytes(gothic, "Shift_JIS", 5), "\x83\x53\x83\x56");
    EXPECT_EQ(FontNameBytes(gothic, "Shift_JIS", 3), "\x83\x53");
}

}  // namespace
}  // namespace zm::host::fonts
