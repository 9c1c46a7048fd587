#include "host/suites/SuiteFixture.hpp"

#include <suites/TextEngineObjects.hpp>

#include <zelmora/KRXFontSuite.h>
#include <zelmora/ZMFontSuite.h>

#include <gtest/gtest.h>

#include <cstddef>
#include <string>

namespace zm::host {
namespace {

// Both sides read the info record, so its layout is fixed: the pointer-sized installed field
// and the four flag bytes sit where a plug-in compiled against the header expects them.
static_assert(offsetof(ZMFontInfo, platformFont) == 0);
static_assert(offsetof(ZMFontInfo, technology) == 8);
static_assert(offsetof(ZMFontInfo, script) == 12);
static_assert(offsetof(ZMFontInfo, installed) == 16);
static_assert(offsetof(ZMFontInfo, cid) == 24);
static_assert(offsetof(ZMFontInfo, tsumeKind) == 28);
static_assert(offsetof(ZMFontInfo, openType) == 32);
static_assert(offsetof(ZMFontInfo, bitmap) == 33);
static_assert(offsetof(ZMFontInfo, type1) == 34);
static_assert(offsetof(ZMFontInfo, composite) == 35);
static_assert(offsetof(ZMFontInfo, alternateName) == 36);
static_assert(sizeof(ZMFontInfo) == 40);

class FontSuiteTest : public zm::test::SuiteFixture {
protected:
    void SetUp() override {
        Acquire(ZM_FONT_SUITE_NAME, ZM_FONT_SUITE_VERSION, fonts);
        Acquire(ZM_KRX_FONT_SUITE_NAME, ZM_KRX_FONT_SUITE_VERSION, krxFonts);
    }

    ZMFontKey Key(const char* family, int32_t weight = 400, const char* style = "normal") {
        ZMFontKey key = nullptr;
        EXPECT_EQ(fonts->FindFontKey(family, weight, style, &key), ZM_ERR_NONE) << family;
        return key;
    }

    ZMFontInfo Info(ZMFontKey key) {
        ZMFontInfo info{};
        EXPECT_EQ(fonts->GetFontInfo(key, &info), ZM_ERR_NONE);
        return info;
    }

    using NameEntry = ZMErr(ZM_API*)(ZMFontKey, char*, int32_t);

    static std::string Name(NameEntry entry, ZMFontKey key) {
        char buffer[64] = {};
        EXPECT_EQ(entry(key, buffer, sizeof buffer), ZM_ERR_NONE);
        return buffer;
    }

    const ZMFontSuite* fonts = nullptr;
    const KRXFontSuite* krxFonts = nullptr;
};

TEST_F(FontSuiteTest, LiberationSansIsAnInstalledTrueTypeFont) {
    ZMFontKey key = Key("Liberation Sans");
    ZMFontInfo info = Info(key);
    EXPECT_NE(info.platformFont, nullptr);
    EXPECT_EQ(info.technology, ZM_FONT_TECHNOLOGY_TRUETYPE);
    EXPECT_NE(info.installed, 0);
    EXPECT_EQ(info.script, ZM_FONT_SCRIPT_ROMAN);  // a Latin 1 font
    EXPECT_EQ(info.openType, 0);                   // TrueType outlines, not CFF
    EXPECT_EQ(info.type1, 0);
    EXPECT_EQ(info.cid, 0);
    EXPECT_EQ(info.bitmap, 0);
    EXPECT_EQ(info.composite, 0);
    EXPECT_EQ(info.tsumeKind, 0);
    EXPECT_EQ(Name(fonts->GetPostScriptName, key), "LiberationSans");
    EXPECT_EQ(Name(fonts->GetWindowsName, key), "Liberation Sans");
    EXPECT_EQ(Name(fonts->GetFullName, key), "Liberation Sans");
    EXPECT_NE(info.alternateName, 0);  // "Liberation Sans" is not "LiberationSans"
}

TEST_F(FontSuiteTest, AFamilyNoFontHasIsNotInstalled) {
    ZMFontKey key = Key("Qwertyuiop Sans", 700);
    ZMFontInfo info = Info(key);
    EXPECT_EQ(info.installed, 0);
    EXPECT_EQ(info.platformFont, nullptr);
    EXPECT_EQ(info.script, ZM_FONT_SCRIPT_UNKNOWN);
    EXPECT_EQ(info.technology, ZM_FONT_TECHNOLOGY_OTHER);
    EXPECT_EQ(Name(fonts->GetPostScriptName, key), "QwertyuiopSans-Bold");
    EXPECT_EQ(Name(fonts->GetWindowsName, key), "Qwertyuiop Sans");
    EXPECT_EQ(Name(fonts->GetFullName, key), "Qwertyuiop Sans Bold");
    EXPECT_EQ(info.alternateName, 0);  // a name the host made up is no name of the font's
}

TEST_F(FontSuiteTest, TheSameRequestTwiceGivesTheSameKey) {
    EXPECT_EQ(Key("Liberation Sans", 700), Key("Liberation Sans", 700));
    EXPECT_EQ(Key("Qwertyuiop Sans", 700, "italic"), Key("Qwertyuiop Sans", 700, "italic"));
    EXPECT_NE(Key("Qwertyuiop Sans", 700), Key("Qwertyuiop Sans", 400));
}

TEST_F(FontSuiteTest, ANameIsCutToTheBufferWithItsNul) {
    ZMFontKey key = Key("Qwertyuiop Sans", 700);
    char buffer[8];
    EXPECT_EQ(fonts->GetPostScriptName(key, buffer, sizeof buffer), ZM_ERR_NONE);
    EXPECT_STREQ(buffer, "Qwertyu");  // seven bytes and the NUL
    EXPECT_EQ(fonts->GetPostScriptName(key, buffer, 1), ZM_ERR_NONE);
    EXPECT_STREQ(buffer, "");
}

TEST_F(FontSuiteTest, TheWindowsNameIsInTheCodePageOfTheFontsScript) {
    // Not installed: script unknown, whose code page is windows-1252, where é is 0xE9.
    EXPECT_EQ(Name(fonts->GetWindowsName, Key("Caf\xC3\xA9 Sans")), "Caf\xE9 Sans");
    // The other names stay UTF-8.
    EXPECT_EQ(Name(fonts->GetPostScriptName, Key("Caf\xC3\xA9 Sans")), "Caf\xC3\xA9Sans");
}

TEST_F(FontSuiteTest, ABadRequestIsABadArgument) {
    ZMFontKey key = nullptr;
    EXPECT_EQ(fonts->FindFontKey(nullptr, 400, "normal", &key), ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(fonts->FindFontKey("", 400, "normal", &key), ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(fonts->FindFontKey("Futura", 0, "normal", &key), ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(fonts->FindFontKey("Futura", 1001, "normal", &key), ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(fonts->FindFontKey("Futura", 400, "bold", &key), ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(fonts->FindFontKey("Futura", 400, nullptr, &key), ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(fonts->FindFontKey("Futura", 400, "normal", nullptr), ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(key, nullptr);
}

TEST_F(FontSuiteTest, AForeignKeyOrAMissingBufferIsABadArgument) {
    ZMFontKey foreign = zm::test::ForeignHandle<ZMFontKey>();
    ZMFontInfo info{};
    char buffer[64];
    EXPECT_EQ(fonts->GetFontInfo(foreign, &info), ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(fonts->GetFontInfo(nullptr, &info), ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(fonts->GetPostScriptName(foreign, buffer, sizeof buffer), ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(fonts->GetFullName(foreign, buffer, sizeof buffer), ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(fonts->GetWindowsName(foreign, buffer, sizeof buffer), ZM_ERR_BAD_ARGUMENT);

    ZMFontKey key = Key("Liberation Sans");
    EXPECT_EQ(fonts->GetFontInfo(key, nullptr), ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(fonts->GetPostScriptName(key, nullptr, 64), ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(fonts->GetFullName(key, buffer, 0), ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(fonts->GetWindowsName(key, buffer, -1), ZM_ERR_BAD_ARGUMENT);
}

// A key goes to the text engine and comes back the same key, installed or not.
TEST_F(FontSuiteTest, AKeyThroughTheTextEngineComesBackTheSame) {
    for (ZMFontKey key : {Key("Liberation Sans", 700), Key("Qwertyuiop Sans", 400, "italic")}) {
        KRXFontRef font = nullptr;
        ASSERT_EQ(fonts->KRXFontFromFontKey(key, &font), ZM_ERR_NONE);
        ZMFontKey back = nullptr;
        EXPECT_EQ(fonts->FontKeyFromKRXFont(font, &back), ZM_ERR_NONE);
        EXPECT_EQ(back, key);
        EXPECT_EQ(krxFonts->Release(font), ZM_ERR_NONE);
    }
    EXPECT_EQ(runtime.objects.Count<FontObject>(), 0u);
}

TEST_F(FontSuiteTest, EachTextEngineFontIsANewReference) {
    ZMFontKey key = Key("Liberation Sans");
    KRXFontRef first = nullptr;
    KRXFontRef second = nullptr;
    ASSERT_EQ(fonts->KRXFontFromFontKey(key, &first), ZM_ERR_NONE);
    ASSERT_EQ(fonts->KRXFontFromFontKey(key, &second), ZM_ERR_NONE);
    EXPECT_EQ(runtime.objects.Count<FontObject>(), 2u);
    EXPECT_EQ(krxFonts->Release(first), ZM_ERR_NONE);
    EXPECT_EQ(krxFonts->Release(second), ZM_ERR_NONE);
    EXPECT_EQ(runtime.objects.Count<FontObject>(), 0u);
}

TEST_F(FontSuiteTest, ConversionsRefuseForeignHandlesAndMissingOutputs) {
    KRXFontRef font = nullptr;
    ZMFontKey key = nullptr;
    EXPECT_EQ(fonts->KRXFontFromFontKey(zm::test::ForeignHandle<ZMFontKey>(), &font),
              ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(fonts->KRXFontFromFontKey(nullptr, &font), ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(fonts->FontKeyFromKRXFont(zm::test::ForeignHandle<KRXFontRef>(), &key),
              ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(fonts->FontKeyFromKRXFont(nullptr, &key), ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(font, nullptr);
    EXPECT_EQ(key, nullptr);

    EXPECT_EQ(fonts->KRXFontFromFontKey(Key("Liberation Sans"), nullptr), ZM_ERR_BAD_ARGUMENT);
    ASSERT_EQ(fonts->KRXFontFromFontKey(Key("Liberation Sans"), &font), ZM_ERR_NONE);
    EXPECT_EQ(fonts->FontKeyFromKRXFont(font, nullptr), ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(krxFonts->Release(font), ZM_ERR_NONE);
    EXPECT_EQ(runtime.objects.Size(), 0u);  // the refused call made no font
}

}  // namespace
}  // namespace zm::host
