#include "DocInfoArguments.hpp"
#include "HostSession.hpp"

#include "support/ScratchFolder.hpp"

#include <gtest/gtest.h>

#include <sstream>
#include <string>
#include <utility>

namespace zelmora {
namespace {

using Preference = std::pair<std::string, std::string>;

TEST(DocInfoArgumentsTest, APreferenceSplitsAtItsFirstEqualsSign) {
    EXPECT_EQ(ParsePreference("rulerType=0"), Preference("rulerType", "0"));
    EXPECT_EQ(ParsePreference("a/b=x=y"), Preference("a/b", "x=y"));
    EXPECT_EQ(ParsePreference("empty="), Preference("empty", ""));
}

TEST(DocInfoArgumentsTest, APreferenceNeedsAKeyAndAnEqualsSign) {
    EXPECT_EQ(ParsePreference("rulerType"), std::nullopt);
    EXPECT_EQ(ParsePreference("=0"), std::nullopt);
    EXPECT_EQ(ParsePreference(""), std::nullopt);
}

TEST(DocInfoArgumentsTest, TheElevenCategoriesAreModesTwoToTwelveInMenuOrder) {
    const char* names[] = {"document",      "objects",       "graphic-styles",  "brushes",
                           "spot-colors",   "patterns",      "gradients",       "fonts",
                           "linked-images", "embedded-images", "font-details"};
    int32_t mode = 2;
    for (const char* name : names) {
        EXPECT_EQ(CategoryMode(name), mode) << name;
        ++mode;
    }
    EXPECT_EQ(CategoryNames().size(), 11u);
}

TEST(DocInfoArgumentsTest, OtherCategoryNamesAreUnknown) {
    EXPECT_EQ(CategoryMode("Fonts"), std::nullopt);  // names are lower case
    EXPECT_EQ(CategoryMode("spot-colours"), std::nullopt);
    EXPECT_EQ(CategoryMode(""), std::nullopt);
}

TEST(DocInfoArgumentsTest, SessionSettingsAreInPlaceForThePlugins) {
    SessionOptions options;
    options.preferences = {{"rulerType", "0"}, {"Tolvane/alternateNames", "true"}};
    options.locale = "de-DE";
    options.saveAnswer = "/tmp/report.txt";
    std::ostringstream errors;
    HostSession session(options, errors);
    auto& runtime = session.Runtime();
    EXPECT_EQ(runtime.preferences.Integer("rulerType"), 0);
    EXPECT_EQ(runtime.preferences.Boolean("Tolvane/alternateNames"), true);
    EXPECT_EQ(runtime.localizer.Locale(), "de-DE");
    EXPECT_EQ(runtime.dialogs.saveAnswer, std::filesystem::path("/tmp/report.txt"));
    session.Finish();
}

TEST(DocInfoArgumentsTest, TheUsageLogOpenedBeforeTheSessionIsTheRuntimes) {
    zm::test::ScratchFolder scratch;
    zm::host::UsageLog log;
    log.Open(scratch.Path() / "usage.jsonl");
    SessionOptions options;
    options.usageLog = &log;
    std::ostringstream errors;
    HostSession session(options, errors);
    EXPECT_TRUE(session.Runtime().usage.IsLogging());
    EXPECT_EQ(session.Runtime().usage.File(), scratch.Path() / "usage.jsonl");
    EXPECT_FALSE(log.IsLogging());  // handed over, not shared: one file, one writer
    session.Finish();
}

}  // namespace
}  // namespace zelmora
