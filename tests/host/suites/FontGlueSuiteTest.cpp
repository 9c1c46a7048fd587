#include "host/suites/SuiteFixture.hpp"

#include <zelmora/ZMFontSuite.h>

#include <gtest/gtest.h>

namespace zm::host {
namespace {

class FontGlueSuiteTest : public zm::test::SuiteFixture {
protected:
    void SetUp() override {
        Acquire(ZM_FONT_SUITE_NAME, ZM_FONT_SUITE_VERSION, fonts);
        Acquire(ZM_FONT_GLUE_SUITE_NAME, ZM_FONT_GLUE_SUITE_VERSION, glue);
    }

    ZMPlatformFont PlatformFont(const char* family) {
        ZMFontKey key = nullptr;
        ZMFontInfo info{};
        EXPECT_EQ(fonts->FindFontKey(family, 400, "normal", &key), ZM_ERR_NONE);
        EXPECT_EQ(fonts->GetFontInfo(key, &info), ZM_ERR_NONE);
        return info.platformFont;
    }

    const ZMFontSuite* fonts = nullptr;
    const ZMFontGlueSuite* glue = nullptr;
};

TEST_F(FontGlueSuiteTest, TheAlternateNameSettingIsOffUnlessThePreferenceTurnsItOn) {
    int32_t setting = 7;
    EXPECT_EQ(glue->GetAlternateNameSetting(&setting), ZM_ERR_NONE);
    EXPECT_EQ(setting, 0);
    runtime.preferences.Set(ZM_FONT_ALTERNATE_NAMES_PREFERENCE, "true");
    EXPECT_EQ(glue->GetAlternateNameSetting(&setting), ZM_ERR_NONE);
    EXPECT_EQ(setting, 1);
    runtime.preferences.Set(ZM_FONT_ALTERNATE_NAMES_PREFERENCE, "0");
    EXPECT_EQ(glue->GetAlternateNameSetting(&setting), ZM_ERR_NONE);
    EXPECT_EQ(setting, 0);
}

TEST_F(FontGlueSuiteTest, APreferenceThatIsNoBooleanIsTheWrongType) {
    runtime.preferences.Set(ZM_FONT_ALTERNATE_NAMES_PREFERENCE, "sometimes");
    int32_t setting = 0;
    EXPECT_EQ(glue->GetAlternateNameSetting(&setting), ZM_ERR_WRONG_TYPE);
    EXPECT_EQ(glue->GetAlternateNameSetting(nullptr), ZM_ERR_BAD_ARGUMENT);
}

TEST_F(FontGlueSuiteTest, AStaticTrueTypeFontHasNoDesignAxes) {
    ZMPlatformFont font = PlatformFont("Liberation Sans");
    ASSERT_NE(font, nullptr);
    int32_t count = -1;
    EXPECT_EQ(glue->CountDesignAxes(font, &count), ZM_ERR_NONE);
    EXPECT_EQ(count, 0);  // no fvar table, no multiple-master axes
}

TEST_F(FontGlueSuiteTest, AMissingOrForeignPlatformFontIsABadArgument) {
    int32_t count = 0;
    // A font that is not installed has no platform font.
    EXPECT_EQ(PlatformFont("Qwertyuiop Sans"), nullptr);
    EXPECT_EQ(glue->CountDesignAxes(nullptr, &count), ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(glue->CountDesignAxes(zm::test::ForeignHandle<ZMPlatformFont>(), &count),
              ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(glue->CountDesignAxes(PlatformFont("Liberation Sans"), nullptr),
              ZM_ERR_BAD_ARGUMENT);
}

}  // namespace
}  // namespace zm::host
