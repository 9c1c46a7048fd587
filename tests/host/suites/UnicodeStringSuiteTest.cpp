#include "runtime/Runtime.hpp"
#include "suites/UnicodeStringHandle.hpp"

#include <zelmora/ZMUnicodeStringSuite.h>

#include <gtest/gtest.h>

#include <algorithm>
#include <iterator>
#include <string>
#include <string_view>
#include <vector>

// Literals in this file are UTF-8.
namespace {

constexpr int32_t kAppendEntry = 6;
constexpr std::string_view kEmoji = "\xF0\x9F\x98\x80";  // U+1F600, a surrogate pair in UTF-16

// The real suite table, called through C as a plug-in calls it.
class UnicodeStringSuiteTest : public ::testing::Test {
protected:
    void SetUp() override {
        const void* table = nullptr;
        ASSERT_EQ(runtime.suites.Acquire(ZM_UNICODE_STRING_SUITE_NAME,
                                         ZM_UNICODE_STRING_SUITE_VERSION, &table),
                  ZM_ERR_NONE);
        strings = static_cast<const ZMUnicodeStringSuite*>(table);
    }

    void TearDown() override {
        for (ZMUnicodeString string : owned_) {
            EXPECT_EQ(strings->Dispose(string), ZM_ERR_NONE);
        }
        runtime.suites.Release(ZM_UNICODE_STRING_SUITE_NAME, ZM_UNICODE_STRING_SUITE_VERSION);
    }

    // The fixture disposes the string after the test.
    ZMUnicodeString Keep(ZMUnicodeString string) {
        owned_.push_back(string);
        return string;
    }

    ZMUnicodeString Make(std::string_view bytes, ZMStringEncoding encoding = ZM_ENCODING_UTF8) {
        ZMUnicodeString string = nullptr;
        EXPECT_EQ(strings->NewFromBytes(bytes.data(), static_cast<int32_t>(bytes.size()), encoding,
                                        &string),
                  ZM_ERR_NONE);
        return Keep(string);
    }

    ZMUnicodeString FromKey(const char* key) {
        ZMUnicodeString string = nullptr;
        EXPECT_EQ(strings->NewFromLocalizableKey(key, &string), ZM_ERR_NONE);
        return Keep(string);
    }

    // The whole text: the length first, from a zero-size buffer, then the bytes.
    std::string Bytes(ZMUnicodeString string, ZMStringEncoding encoding = ZM_ENCODING_UTF8) {
        int32_t byteCount = -1;
        EXPECT_EQ(strings->ToBytes(string, encoding, nullptr, 0, &byteCount),
                  ZM_ERR_BUFFER_TOO_SMALL);
        std::vector<char> buffer(static_cast<std::size_t>(byteCount) + 1, 'x');
        int32_t written = -1;
        EXPECT_EQ(strings->ToBytes(string, encoding, buffer.data(),
                                   static_cast<int32_t>(buffer.size()), &written),
                  ZM_ERR_NONE);
        EXPECT_EQ(written, byteCount);
        EXPECT_EQ(buffer.back(), '\0');
        return std::string(buffer.data(), static_cast<std::size_t>(byteCount));
    }

    int32_t Length(ZMUnicodeString string) {
        int32_t length = -1;
        EXPECT_EQ(strings->Length(string, &length), ZM_ERR_NONE);
        return length;
    }

    int32_t Compare(ZMUnicodeString first, ZMUnicodeString second) {
        int32_t order = 99;
        EXPECT_EQ(strings->Compare(first, second, &order), ZM_ERR_NONE);
        return order;
    }

    zm::host::Runtime runtime;
    const ZMUnicodeStringSuite* strings = nullptr;

private:
    std::vector<ZMUnicodeString> owned_;
};

TEST_F(UnicodeStringSuiteTest, Utf8BytesComeBackUnchanged) {
    std::string text = "Grüße, 日本 " + std::string(kEmoji);
    EXPECT_EQ(Bytes(Make(text)), text);
}

TEST_F(UnicodeStringSuiteTest, EveryWindows1252ByteComesBackUnchanged) {
    std::string all;
    for (int byte = 0; byte < 256; ++byte) {
        all.push_back(static_cast<char>(byte));
    }
    EXPECT_EQ(Bytes(Make(all, ZM_ENCODING_PLATFORM), ZM_ENCODING_PLATFORM), all);
}

TEST_F(UnicodeStringSuiteTest, Windows1252ByteE9IsEAcute) {
    ZMUnicodeString string = Make("\xE9", ZM_ENCODING_PLATFORM);
    EXPECT_EQ(Bytes(string), "é");
    EXPECT_EQ(Length(string), 1);
}

TEST_F(UnicodeStringSuiteTest, Windows1252Byte80IsTheEuroSign) {
    EXPECT_EQ(Bytes(Make("\x80", ZM_ENCODING_PLATFORM)), "€");
}

TEST_F(UnicodeStringSuiteTest, TheEuroSignGoesOutToWindows1252AsByte80) {
    EXPECT_EQ(Bytes(Make("€ é"), ZM_ENCODING_PLATFORM), "\x80 \xE9");
}

TEST_F(UnicodeStringSuiteTest, EachCharacterWindows1252CannotHoldBecomesOneQuestionMark) {
    EXPECT_EQ(Bytes(Make("日本"), ZM_ENCODING_PLATFORM), "??");
}

TEST_F(UnicodeStringSuiteTest, AnEmojiBecomesOneQuestionMarkInWindows1252) {
    EXPECT_EQ(Bytes(Make("a" + std::string(kEmoji) + "b"), ZM_ENCODING_PLATFORM), "a?b");
}

TEST_F(UnicodeStringSuiteTest, InvalidUtf8IsRefusedAsBadEncoding) {
    const std::vector<std::string> invalid = {
        "\xC3",              // cut short
        "\xC0\xAF",          // overlong "/"
        "\xED\xA0\x80",      // a surrogate written as UTF-8
        "\xF4\x90\x80\x80",  // beyond U+10FFFF
        "ok\xFF",
    };
    for (const std::string& bytes : invalid) {
        ZMUnicodeString string = nullptr;
        EXPECT_EQ(strings->NewFromBytes(bytes.data(), static_cast<int32_t>(bytes.size()),
                                        ZM_ENCODING_UTF8, &string),
                  ZM_ERR_BAD_ENCODING)
            << bytes;
        EXPECT_EQ(string, nullptr);
    }
}

// The code pages of the font scripts, each with a name written in it (the bytes are those
// the code page's own table gives: 日 is 93 FA in Shift_JIS, A4 E9 in Big5, C8 D5 in GBK;
// 한 is C7 D1 in code page 949; П is CF in windows-1251; Š is 8A in windows-1250).
TEST_F(UnicodeStringSuiteTest, EachFontScriptsCodePageReadsItsOwnBytes) {
    EXPECT_EQ(Bytes(Make("Caf\xE9", ZM_ENCODING_ROMAN)), "Café");
    EXPECT_EQ(Bytes(Make("\x93\xFA\x96\x7B", ZM_ENCODING_JAPANESE)), "日本");
    EXPECT_EQ(Bytes(Make("\xA4\xE9\xA5\xBB", ZM_ENCODING_TRADITIONAL_CHINESE)), "日本");
    EXPECT_EQ(Bytes(Make("\xC8\xD5\xB1\xBE", ZM_ENCODING_SIMPLIFIED_CHINESE)), "日本");
    EXPECT_EQ(Bytes(Make("\xC7\xD1\xB1\xB9", ZM_ENCODING_KOREAN)), "한국");
    EXPECT_EQ(Bytes(Make("\xCF\xF0\xE8\xE2\xE5\xF2", ZM_ENCODING_CYRILLIC)), "Привет");
    EXPECT_EQ(Bytes(Make("\x8Ao\x9A", ZM_ENCODING_CENTRAL_EUROPEAN)), "Šoš");
}

TEST_F(UnicodeStringSuiteTest, AFontScriptsCodePageWritesItsOwnBytesAndQuestionMarks) {
    EXPECT_EQ(Bytes(Make("日本"), ZM_ENCODING_JAPANESE), "\x93\xFA\x96\x7B");
    EXPECT_EQ(Bytes(Make("Привет"), ZM_ENCODING_CYRILLIC), "\xCF\xF0\xE8\xE2\xE5\xF2");
    // Shift_JIS has no Hangul, windows-1251 no Japanese: one "?" per character.
    EXPECT_EQ(Bytes(Make("한국"), ZM_ENCODING_JAPANESE), "??");
    EXPECT_EQ(Bytes(Make("a日b"), ZM_ENCODING_CYRILLIC), "a?b");
}

// "a" is one byte and each of 日本 two in Shift_JIS: five bytes of room hold "a日" and the
// NUL, not half of 本; its trail byte 7B would read as "{" on its own.
TEST_F(UnicodeStringSuiteTest, DoubleByteTextIsCutBetweenTwoCharacters) {
    ZMUnicodeString string = Make("a日本");
    char buffer[5];
    int32_t byteCount = -1;
    EXPECT_EQ(strings->ToBytes(string, ZM_ENCODING_JAPANESE, buffer, sizeof buffer, &byteCount),
              ZM_ERR_BUFFER_TOO_SMALL);
    EXPECT_EQ(byteCount, 5);
    EXPECT_STREQ(buffer, "a\x93\xFA");
}

TEST_F(UnicodeStringSuiteTest, ADoubleByteCharacterCutShortIsRefusedAsBadEncoding) {
    ZMUnicodeString string = nullptr;
    EXPECT_EQ(strings->NewFromBytes("\x93", 1, ZM_ENCODING_JAPANESE, &string),
              ZM_ERR_BAD_ENCODING);  // the lead byte of 日 without its trail byte
    EXPECT_EQ(string, nullptr);
}

TEST_F(UnicodeStringSuiteTest, AnUnknownEncodingIsBadEncodingOnTheWayIn) {
    ZMUnicodeString string = nullptr;
    EXPECT_EQ(strings->NewFromBytes("a", 1, 2, &string), ZM_ERR_BAD_ENCODING);
    EXPECT_EQ(strings->NewFromBytes("a", 1, -1, &string), ZM_ERR_BAD_ENCODING);
    EXPECT_EQ(string, nullptr);
}

TEST_F(UnicodeStringSuiteTest, AnUnknownEncodingIsBadEncodingOnTheWayOut) {
    char buffer[8];
    int32_t byteCount = -1;
    EXPECT_EQ(strings->ToBytes(Make("a"), 2, buffer, sizeof buffer, &byteCount),
              ZM_ERR_BAD_ENCODING);
}

TEST_F(UnicodeStringSuiteTest, BytesStopAtTheCountNotAtANul) {
    ZMUnicodeString string = Make(std::string_view("a\0b", 3));
    EXPECT_EQ(Length(string), 3);
    EXPECT_EQ(Length(Make(std::string_view("abc", 2))), 2);
}

TEST_F(UnicodeStringSuiteTest, ZeroBytesMakeAnEmptyStringEvenFromNull) {
    ZMUnicodeString string = nullptr;
    ASSERT_EQ(strings->NewFromBytes(nullptr, 0, ZM_ENCODING_UTF8, &string), ZM_ERR_NONE);
    EXPECT_EQ(Length(Keep(string)), 0);
}

TEST_F(UnicodeStringSuiteTest, ANegativeByteCountIsBadArgument) {
    ZMUnicodeString string = nullptr;
    EXPECT_EQ(strings->NewFromBytes("a", -1, ZM_ENCODING_UTF8, &string), ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(strings->NewFromBytes(nullptr, 1, ZM_ENCODING_UTF8, &string), ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(string, nullptr);
}

TEST_F(UnicodeStringSuiteTest, MissingOutPointersAreBadArgument) {
    ZMUnicodeString string = Make("a");
    char buffer[4];
    EXPECT_EQ(strings->NewEmpty(nullptr), ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(strings->NewFromBytes("a", 1, ZM_ENCODING_UTF8, nullptr), ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(strings->NewFromLocalizableKey("$$$/A/B=c", nullptr), ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(strings->Copy(string, nullptr), ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(strings->Length(string, nullptr), ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(strings->Compare(string, string, nullptr), ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(strings->ToBytes(string, ZM_ENCODING_UTF8, buffer, sizeof buffer, nullptr),
              ZM_ERR_BAD_ARGUMENT);
}

TEST_F(UnicodeStringSuiteTest, NewEmptyMakesAnEmptyString) {
    ZMUnicodeString string = nullptr;
    ASSERT_EQ(strings->NewEmpty(&string), ZM_ERR_NONE);
    Keep(string);
    EXPECT_NE(string, nullptr);
    EXPECT_EQ(Length(string), 0);
    EXPECT_EQ(Bytes(string), "");
}

TEST_F(UnicodeStringSuiteTest, LengthCountsUtf16Units) {
    EXPECT_EQ(Length(Make("é")), 1);
    EXPECT_EQ(Length(Make(kEmoji)), 2);
    EXPECT_EQ(Length(Make("a日" + std::string(kEmoji))), 4);
}

TEST_F(UnicodeStringSuiteTest, CompareOrdersByUtf16CodeUnits) {
    ZMUnicodeString wave = Make("\xEF\xBD\x9E");  // U+FF5E
    ZMUnicodeString emoji = Make(kEmoji);         // U+1F600, led by 0xD83D < 0xFF5E
    EXPECT_EQ(Compare(emoji, wave), -1);
    EXPECT_EQ(Compare(wave, emoji), 1);
}

TEST_F(UnicodeStringSuiteTest, CompareGivesMinusOneZeroOrOne) {
    EXPECT_EQ(Compare(Make("apple"), Make("banana")), -1);
    EXPECT_EQ(Compare(Make("same"), Make("same")), 0);
    EXPECT_EQ(Compare(Make("b"), Make("abc")), 1);
    EXPECT_EQ(Compare(Make("ab"), Make("abc")), -1);
}

TEST_F(UnicodeStringSuiteTest, AppendAddsTheTail) {
    ZMUnicodeString target = Make("Fonts:");
    EXPECT_EQ(strings->Append(target, Make(" 日本")), ZM_ERR_NONE);
    EXPECT_EQ(Bytes(target), "Fonts: 日本");
}

TEST_F(UnicodeStringSuiteTest, AppendingAStringToItselfDoublesIt) {
    ZMUnicodeString target = Make("ab");
    EXPECT_EQ(strings->Append(target, target), ZM_ERR_NONE);
    EXPECT_EQ(Bytes(target), "abab");
}

TEST_F(UnicodeStringSuiteTest, AssignMakesTheTargetACopyOfTheSource) {
    ZMUnicodeString target = Make("old");
    ZMUnicodeString source = Make("new");
    EXPECT_EQ(strings->Assign(target, source), ZM_ERR_NONE);
    EXPECT_EQ(strings->Append(source, Make("er")), ZM_ERR_NONE);
    EXPECT_EQ(Bytes(target), "new");  // a copy: the source changing later leaves it alone
    EXPECT_EQ(Bytes(source), "newer");
}

TEST_F(UnicodeStringSuiteTest, CopyMakesAnIndependentString) {
    ZMUnicodeString source = Make("one");
    ZMUnicodeString copy = nullptr;
    ASSERT_EQ(strings->Copy(source, &copy), ZM_ERR_NONE);
    Keep(copy);
    EXPECT_NE(copy, source);
    EXPECT_EQ(strings->Append(copy, Make(" two")), ZM_ERR_NONE);
    EXPECT_EQ(Bytes(source), "one");
    EXPECT_EQ(Bytes(copy), "one two");
}

TEST_F(UnicodeStringSuiteTest, ANullHandleReadsAsEmpty) {
    ZMUnicodeString target = Make("kept");
    EXPECT_EQ(Length(nullptr), 0);
    EXPECT_EQ(Bytes(nullptr), "");
    EXPECT_EQ(Compare(nullptr, Make("")), 0);
    EXPECT_EQ(Compare(nullptr, target), -1);
    EXPECT_EQ(strings->Append(target, nullptr), ZM_ERR_NONE);
    EXPECT_EQ(Bytes(target), "kept");
    ZMUnicodeString copy = nullptr;
    ASSERT_EQ(strings->Copy(nullptr, &copy), ZM_ERR_NONE);
    EXPECT_EQ(Length(Keep(copy)), 0);
    EXPECT_EQ(strings->Assign(target, nullptr), ZM_ERR_NONE);
    EXPECT_EQ(Length(target), 0);
}

TEST_F(UnicodeStringSuiteTest, ANullTargetCannotBeWritten) {
    EXPECT_EQ(strings->Assign(nullptr, Make("a")), ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(strings->Append(nullptr, Make("a")), ZM_ERR_BAD_ARGUMENT);
}

TEST_F(UnicodeStringSuiteTest, DisposingNullIsIgnored) {
    EXPECT_EQ(strings->Dispose(nullptr), ZM_ERR_NONE);
}

TEST_F(UnicodeStringSuiteTest, AKeyGivesTheDefaultTextAfterTheEqualsSign) {
    EXPECT_EQ(Bytes(FromKey("$$$/Tolvane/Str/ResOther/6=NONE")), "NONE");
}

TEST_F(UnicodeStringSuiteTest, AKeyWithAPlatformTagKeepsTheLeadingBlankOfItsDefault) {
    EXPECT_EQ(Bytes(FromKey("$$$/Tolvane/Str/ResSave/2/Win= Info.txt")), " Info.txt");
}

TEST_F(UnicodeStringSuiteTest, ADefaultTextKeepsEverythingAfterTheFirstEqualsSign) {
    EXPECT_EQ(Bytes(FromKey("$$$/Tolvane/Str/Formula=a=b+c")), "a=b+c");
}

TEST_F(UnicodeStringSuiteTest, ATranslationWinsOverTheDefaultText) {
    runtime.localizer.AddTranslation("$$$/Tolvane/Str/ResOther/6", "KEINE");
    EXPECT_EQ(Bytes(FromKey("$$$/Tolvane/Str/ResOther/6=NONE")), "KEINE");
}

TEST_F(UnicodeStringSuiteTest, ATranslationComesInAsUtf8) {
    runtime.localizer.AddTranslation("$$$/Tolvane/Str/Title", "Größe 日本");
    ZMUnicodeString string = FromKey("$$$/Tolvane/Str/Title=Size");
    EXPECT_EQ(Length(string), 8);
    EXPECT_EQ(Bytes(string), "Größe 日本");
}

TEST_F(UnicodeStringSuiteTest, ANullKeyIsBadArgument) {
    ZMUnicodeString string = nullptr;
    EXPECT_EQ(strings->NewFromLocalizableKey(nullptr, &string), ZM_ERR_BAD_ARGUMENT);
}

TEST_F(UnicodeStringSuiteTest, TextTooLongForTheBufferIsCutAtACharacterAndTerminated) {
    ZMUnicodeString string = Make("日本語");  // three characters of three bytes each
    char buffer[6];
    std::fill(std::begin(buffer), std::end(buffer), 'x');
    int32_t byteCount = -1;
    EXPECT_EQ(strings->ToBytes(string, ZM_ENCODING_UTF8, buffer, sizeof buffer, &byteCount),
              ZM_ERR_BUFFER_TOO_SMALL);
    EXPECT_EQ(byteCount, 9);
    EXPECT_STREQ(buffer, "日");  // five bytes of room: "本" would need six with the NUL
}

TEST_F(UnicodeStringSuiteTest, Windows1252TextTooLongIsCutAtTheLastByteThatFits) {
    ZMUnicodeString string = Make("€uro");
    char buffer[3];
    int32_t byteCount = -1;
    EXPECT_EQ(strings->ToBytes(string, ZM_ENCODING_PLATFORM, buffer, sizeof buffer, &byteCount),
              ZM_ERR_BUFFER_TOO_SMALL);
    EXPECT_EQ(byteCount, 4);
    EXPECT_STREQ(buffer, "\x80u");
}

TEST_F(UnicodeStringSuiteTest, TextFitsOnlyWithRoomForItsNul) {
    ZMUnicodeString string = Make("abc");
    char buffer[4];
    int32_t byteCount = -1;
    EXPECT_EQ(strings->ToBytes(string, ZM_ENCODING_UTF8, buffer, 3, &byteCount),
              ZM_ERR_BUFFER_TOO_SMALL);
    EXPECT_STREQ(buffer, "ab");
    EXPECT_EQ(strings->ToBytes(string, ZM_ENCODING_UTF8, buffer, 4, &byteCount), ZM_ERR_NONE);
    EXPECT_STREQ(buffer, "abc");
    EXPECT_EQ(byteCount, 3);
}

TEST_F(UnicodeStringSuiteTest, AOneByteBufferGetsOnlyTheNul) {
    char buffer[1] = {'x'};
    int32_t byteCount = -1;
    EXPECT_EQ(strings->ToBytes(Make("é"), ZM_ENCODING_UTF8, buffer, 1, &byteCount),
              ZM_ERR_BUFFER_TOO_SMALL);
    EXPECT_EQ(buffer[0], '\0');
    EXPECT_EQ(byteCount, 2);
}

TEST_F(UnicodeStringSuiteTest, ABadBufferIsBadArgument) {
    char buffer[4];
    int32_t byteCount = -1;
    ZMUnicodeString string = Make("a");
    EXPECT_EQ(strings->ToBytes(string, ZM_ENCODING_UTF8, buffer, -1, &byteCount),
              ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(strings->ToBytes(string, ZM_ENCODING_UTF8, nullptr, 4, &byteCount),
              ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(byteCount, -1);
}

TEST_F(UnicodeStringSuiteTest, AnInjectedFaultIsWhatAppendReturns) {
    ZMUnicodeString target = Make("a");
    runtime.faults.FailCall(ZM_UNICODE_STRING_SUITE_NAME, kAppendEntry, 0x12345678);
    EXPECT_EQ(strings->Append(target, Make("b")), 0x12345678);
    EXPECT_EQ(Bytes(target), "a");  // the entry never ran
}

TEST_F(UnicodeStringSuiteTest, TheRegistryHandsOutOneTable) {
    const void* again = nullptr;
    ASSERT_EQ(runtime.suites.Acquire(ZM_UNICODE_STRING_SUITE_NAME, ZM_UNICODE_STRING_SUITE_VERSION,
                                     &again),
              ZM_ERR_NONE);
    EXPECT_EQ(again, strings);
    runtime.suites.Release(ZM_UNICODE_STRING_SUITE_NAME, ZM_UNICODE_STRING_SUITE_VERSION);
}

// The helpers other host suites read a plug-in's strings with.
TEST(UnicodeStringHandleTest, ToUtf8ReadsAHandlesText) {
    ZMUnicodeString string = zm::host::MakeHandle(icu::UnicodeString::fromUTF8("Größe"));
    EXPECT_EQ(zm::host::ToUtf8(string), "Größe");
    delete &zm::host::Deref(string);
}

TEST(UnicodeStringHandleTest, ANullHandleReadsAsEmpty) {
    EXPECT_EQ(zm::host::ToUtf8(nullptr), "");
    EXPECT_TRUE(zm::host::Read(nullptr).isEmpty());
}

TEST(UnicodeStringHandleTest, ANullHandleCannotBeWritten) {
    try {
        zm::host::Deref(nullptr);
        FAIL() << "Deref(nullptr) returned";
    } catch (const zm::host::HostError& error) {
        EXPECT_EQ(error.Code(), ZM_ERR_BAD_ARGUMENT);
    }
}

}  // namespace
