#include "host/suites/DocumentSuiteFixture.hpp"

#include <zelmora/ZMPreferenceSuite.h>

#include <gtest/gtest.h>

namespace zm::host {
namespace {

class PreferenceSuiteTest : public zm::test::DocumentSuiteFixture {
protected:
    void SetUp() override {
        DocumentSuiteFixture::SetUp();
        Acquire(ZM_PREFERENCE_SUITE_NAME, ZM_PREFERENCE_SUITE_VERSION, preferences);
    }

    const ZMPreferenceSuite* preferences = nullptr;
};

TEST_F(PreferenceSuiteTest, AnAbsentPreferenceKeepsTheCallersDefault) {
    int32_t rulerType = 2;
    EXPECT_EQ(preferences->GetIntegerPreference(nullptr, "rulerType", &rulerType), ZM_ERR_NONE);
    EXPECT_EQ(rulerType, 2);
    ZMBool flag = 1;
    EXPECT_EQ(preferences->GetBooleanPreference("Panel", "open", &flag), ZM_ERR_NONE);
    EXPECT_EQ(flag, 1);
    double real = 0.25;
    EXPECT_EQ(preferences->GetRealPreference("Panel", "zoom", &real), ZM_ERR_NONE);
    EXPECT_EQ(real, 0.25);
    ZMUnicodeString text = String("default");
    EXPECT_EQ(preferences->GetStringPreference("Panel", "title", text), ZM_ERR_NONE);
    EXPECT_EQ(Text(text), "default");
}

TEST_F(PreferenceSuiteTest, APreferenceSetByTheCommandIsReadAsAnInteger) {
    runtime.preferences.Set("rulerType", "4");  // as --pref rulerType=4 sets it
    int32_t rulerType = 2;
    EXPECT_EQ(preferences->GetIntegerPreference(nullptr, "rulerType", &rulerType), ZM_ERR_NONE);
    EXPECT_EQ(rulerType, 4);
}

TEST_F(PreferenceSuiteTest, APrefixAndASuffixMakeTheKeyPrefixSlashSuffix) {
    EXPECT_EQ(preferences->PutIntegerPreference("Tolvane", "mode", 7), ZM_ERR_NONE);
    EXPECT_EQ(runtime.preferences.Text("Tolvane/mode"), "7");
    int32_t mode = 0;
    EXPECT_EQ(preferences->GetIntegerPreference(nullptr, "mode", &mode), ZM_ERR_NONE);
    EXPECT_EQ(mode, 0);  // "mode" alone is another key, not set
    EXPECT_EQ(preferences->GetIntegerPreference("Tolvane", "mode", &mode), ZM_ERR_NONE);
    EXPECT_EQ(mode, 7);
}

TEST_F(PreferenceSuiteTest, EachTypeReadsBackWhatWasPut) {
    EXPECT_EQ(preferences->PutBooleanPreference("P", "flag", 3), ZM_ERR_NONE);  // non-zero: true
    EXPECT_EQ(preferences->PutIntegerPreference("P", "count", -123456), ZM_ERR_NONE);
    EXPECT_EQ(preferences->PutRealPreference("P", "scale", 0.1), ZM_ERR_NONE);
    EXPECT_EQ(preferences->PutStringPreference("P", "name", String("Caf\xC3\xA9")), ZM_ERR_NONE);
    ZMBool flag = 0;
    int32_t count = 0;
    double scale = 0;
    ZMUnicodeString name = String();
    EXPECT_EQ(preferences->GetBooleanPreference("P", "flag", &flag), ZM_ERR_NONE);
    EXPECT_EQ(preferences->GetIntegerPreference("P", "count", &count), ZM_ERR_NONE);
    EXPECT_EQ(preferences->GetRealPreference("P", "scale", &scale), ZM_ERR_NONE);
    EXPECT_EQ(preferences->GetStringPreference("P", "name", name), ZM_ERR_NONE);
    EXPECT_EQ(flag, 1);
    EXPECT_EQ(count, -123456);
    EXPECT_EQ(scale, 0.1);  // stored as the shortest text that reads back as the same double
    EXPECT_EQ(Text(name), "Caf\xC3\xA9");
    EXPECT_EQ(runtime.preferences.Text("P/flag"), "true");
}

TEST_F(PreferenceSuiteTest, BooleansReadTrueFalseOneAndZero) {
    ZMBool flag = -1;
    runtime.preferences.Set("a", "false");
    EXPECT_EQ(preferences->GetBooleanPreference(nullptr, "a", &flag), ZM_ERR_NONE);
    EXPECT_EQ(flag, 0);
    runtime.preferences.Set("a", "1");
    EXPECT_EQ(preferences->GetBooleanPreference(nullptr, "a", &flag), ZM_ERR_NONE);
    EXPECT_EQ(flag, 1);
}

TEST_F(PreferenceSuiteTest, TextOfAnotherTypeIsAWrongTypeAndKeepsTheValue) {
    runtime.preferences.Set("rulerType", "inches");
    int32_t rulerType = 2;
    EXPECT_EQ(preferences->GetIntegerPreference(nullptr, "rulerType", &rulerType),
              ZM_ERR_WRONG_TYPE);
    EXPECT_EQ(rulerType, 2);
    runtime.preferences.Set("big", "4294967296");  // 2^32 does not fit 32 bits
    EXPECT_EQ(preferences->GetIntegerPreference(nullptr, "big", &rulerType), ZM_ERR_WRONG_TYPE);
    runtime.preferences.Set("half", "0.5x");
    double real = 1;
    EXPECT_EQ(preferences->GetRealPreference(nullptr, "half", &real), ZM_ERR_WRONG_TYPE);
    EXPECT_EQ(real, 1.0);
    ZMBool flag = 1;
    EXPECT_EQ(preferences->GetBooleanPreference(nullptr, "half", &flag), ZM_ERR_WRONG_TYPE);
    EXPECT_EQ(flag, 1);
}

TEST_F(PreferenceSuiteTest, MissingArgumentsAreRefused) {
    int32_t value = 0;
    EXPECT_EQ(preferences->GetIntegerPreference("P", nullptr, &value), ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(preferences->GetIntegerPreference("P", "x", nullptr), ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(preferences->GetBooleanPreference("P", "x", nullptr), ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(preferences->GetRealPreference("P", "x", nullptr), ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(preferences->GetStringPreference("P", "x", nullptr), ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(preferences->PutBooleanPreference("P", nullptr, 1), ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(preferences->PutIntegerPreference("P", nullptr, 1), ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(preferences->PutRealPreference("P", nullptr, 1), ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(preferences->PutStringPreference("P", nullptr, String("x")), ZM_ERR_BAD_ARGUMENT);
}

}  // namespace
}  // namespace zm::host
