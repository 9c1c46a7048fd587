#include <runtime/HostError.hpp>
#include <runtime/Preferences.hpp>

#include <gtest/gtest.h>

namespace zm::host {
namespace {

TEST(PreferencesTest, AKeyIsPrefixSlashSuffixOrTheSuffixAlone) {
    EXPECT_EQ(Preferences::Key("Tolvane", "mode"), "Tolvane/mode");
    EXPECT_EQ(Preferences::Key(nullptr, "rulerType"), "rulerType");
}

TEST(PreferencesTest, AnAbsentKeyGivesNothingOfAnyType) {
    Preferences preferences;
    EXPECT_FALSE(preferences.Text("rulerType"));
    EXPECT_FALSE(preferences.Boolean("rulerType"));
    EXPECT_FALSE(preferences.Integer("rulerType"));
    EXPECT_FALSE(preferences.Real("rulerType"));
}

TEST(PreferencesTest, TextIsReadAsTheTypeAskedFor) {
    Preferences preferences;
    preferences.Set("n", "-42");
    EXPECT_EQ(preferences.Integer("n"), -42);
    EXPECT_EQ(preferences.Real("n"), -42.0);
    EXPECT_THROW(preferences.Boolean("n"), HostError);  // only true, false, 1 and 0 are booleans
    preferences.Set("n", "1");
    EXPECT_EQ(preferences.Boolean("n"), true);
}

TEST(PreferencesTest, TextThatIsNotWhollyANumberIsAWrongType) {
    Preferences preferences;
    preferences.Set("n", "12pt");
    try {
        preferences.Integer("n");
        FAIL() << "12pt read as an integer";
    } catch (const HostError& error) {
        EXPECT_EQ(error.Code(), ZM_ERR_WRONG_TYPE);
    }
    preferences.Set("n", "");
    EXPECT_THROW(preferences.Real("n"), HostError);
}

TEST(PreferencesTest, TypedValuesAreStoredAsText) {
    Preferences preferences;
    preferences.SetBoolean("b", false);
    preferences.SetInteger("i", 2147483647);
    preferences.SetReal("r", 1.5);
    EXPECT_EQ(preferences.Text("b"), "false");
    EXPECT_EQ(preferences.Text("i"), "2147483647");
    EXPECT_EQ(preferences.Text("r"), "1.5");
    preferences.Set("r", "2");  // a later value replaces the earlier one
    EXPECT_EQ(preferences.Real("r"), 2.0);
}

}  // namespace
}  // namespace zm::host
