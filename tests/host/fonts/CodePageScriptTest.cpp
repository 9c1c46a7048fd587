#include <fonts/CodePageScript.hpp>

#include <gtest/gtest.h>

#include <cstdint>

namespace zm::host::fonts {
namespace {

constexpr uint32_t Bit(int bit) { return uint32_t{1} << bit; }

TEST(CodePageScriptTest, EachCodePageOnItsOwnGivesItsScript) {
    EXPECT_EQ(ScriptFromCodePages(Bit(0)), 0);    // 1252 Latin 1: Roman
    EXPECT_EQ(ScriptFromCodePages(Bit(1)), 29);   // 1250 Latin 2: Central European
    EXPECT_EQ(ScriptFromCodePages(Bit(2)), 7);    // 1251 Cyrillic
    EXPECT_EQ(ScriptFromCodePages(Bit(17)), 1);   // 932 Japanese
    EXPECT_EQ(ScriptFromCodePages(Bit(18)), 25);  // 936 Simplified Chinese
    EXPECT_EQ(ScriptFromCodePages(Bit(19)), 3);   // 949 Korean Wansung
    EXPECT_EQ(ScriptFromCodePages(Bit(20)), 2);   // 950 Traditional Chinese
    EXPECT_EQ(ScriptFromCodePages(Bit(21)), 3);   // 1361 Korean Johab
    EXPECT_EQ(ScriptFromCodePages(Bit(31)), 32);  // Symbol
}

TEST(CodePageScriptTest, ACjkCodePageWinsOverLatin) {
    // A Japanese font also declares Latin 1, since it holds Latin letters too.
    EXPECT_EQ(ScriptFromCodePages(Bit(0) | Bit(17)), 1);
    EXPECT_EQ(ScriptFromCodePages(Bit(0) | Bit(1) | Bit(2) | Bit(20)), 2);
}

TEST(CodePageScriptTest, JapaneseComesBeforeTheOtherCjkCodePages) {
    // Japanese, Traditional Chinese, Korean, then Simplified Chinese.
    EXPECT_EQ(ScriptFromCodePages(Bit(17) | Bit(18) | Bit(19) | Bit(20)), 1);
    EXPECT_EQ(ScriptFromCodePages(Bit(18) | Bit(19) | Bit(20)), 2);
    EXPECT_EQ(ScriptFromCodePages(Bit(18) | Bit(19)), 3);
}

TEST(CodePageScriptTest, LatinOneWinsOverLatinTwoCyrillicAndSymbol) {
    // A pan-European font such as Liberation Sans declares all of them; it is a Roman font.
    EXPECT_EQ(ScriptFromCodePages(Bit(0) | Bit(1) | Bit(2) | Bit(31)), 0);
    EXPECT_EQ(ScriptFromCodePages(Bit(1) | Bit(2)), 29);
    EXPECT_EQ(ScriptFromCodePages(Bit(2) | Bit(31)), 7);
}

TEST(CodePageScriptTest, NoKnownCodePageIsAnUnknownScript) {
    EXPECT_EQ(ScriptFromCodePages(0), -1);
    EXPECT_EQ(ScriptFromCodePages(Bit(3) | Bit(5) | Bit(16)), -1);  // Greek, Hebrew, Thai
}

}  // namespace
}  // namespace zm::host::fonts
