#include <shell/ErrorAlert.hpp>
#include <shell/FrameworkCalls.hpp>
#include <shell/PluginDescription.hpp>
#include <shell/SuiteSet.hpp>

#include <runtime/Runtime.hpp>
#include <suites/BasicSuite.hpp>

#include <gtest/gtest.h>

#include <string>

namespace {

using zm::host::AlertKind;

// 81 and 80 characters: the longest sentence that still gets its own paragraph is 80.
const std::string kLongSentence(81, 'L');
const std::string kLimitSentence(80, 'S');

// The alert routine over the real host suites and Tolvane's real string table, with two
// extra sentences (19200/4 and 19200/5) to reach the length rule.
class ErrorAlertTest : public ::testing::Test {
protected:
    void SetUp() override {
        zm::host::PluginBundle bundle;
        bundle.properties.pluginName = "Tolvane";
        bundle.strings =
            zm::host::StringTable::Read(ZELMORA_TEST_BUNDLE "/Resources/TolvaneStrings.txt");
        bundle.strings.Add(19204, "$$$/Test/Long=" + kLongSentence);
        bundle.strings.Add(19205, "$$$/Test/Limit=" + kLimitSentence);
        zm::host::LoadedPlugin& plugin = runtime.plugins.Adopt(std::move(bundle));
        plugin.framework.description = &tolvane::gPluginDescription;
        tolvane::sBasicSuite = const_cast<ZMBasicSuite*>(&zm::host::HostBasicSuite());
        Acquire(ZM_PXM_BASIC_SUITE_NAME, ZM_PXM_BASIC_SUITE_VERSION, &tolvane::sPxmBasicSuite);
        Acquire(ZM_USER_SUITE_NAME, ZM_USER_SUITE_VERSION, &tolvane::sUserSuite);
        Acquire(ZM_UNICODE_STRING_SUITE_NAME, ZM_UNICODE_STRING_SUITE_VERSION,
                &tolvane::sUnicodeStringSuite);
    }

    void TearDown() override {
        tolvane::ReleaseFrameworkSuite();
        runtime.suites.Release(ZM_PXM_BASIC_SUITE_NAME, ZM_PXM_BASIC_SUITE_VERSION);
        runtime.suites.Release(ZM_USER_SUITE_NAME, ZM_USER_SUITE_VERSION);
        runtime.suites.Release(ZM_UNICODE_STRING_SUITE_NAME, ZM_UNICODE_STRING_SUITE_VERSION);
        tolvane::sPxmBasicSuite = nullptr;
        tolvane::sUserSuite = nullptr;
        tolvane::sUnicodeStringSuite = nullptr;
        tolvane::sBasicSuite = nullptr;
        EXPECT_TRUE(runtime.suites.Outstanding().empty());
    }

    template <typename Table>
    void Acquire(const char* name, int32_t version, const Table** target) {
        const void* table = nullptr;
        ASSERT_EQ(runtime.suites.Acquire(name, version, &table), ZM_ERR_NONE);
        *target = static_cast<const Table*>(table);
    }

    // The one alert shown; fails the test unless exactly one was.
    zm::host::Alert OnlyAlert() {
        EXPECT_EQ(runtime.alerts.size(), 1u);
        return runtime.alerts.empty() ? zm::host::Alert{AlertKind::Message, ""}
                                      : runtime.alerts.front();
    }

    zm::host::Runtime runtime;
};

// Joins the parts as the alert does: title, detail and two empty parts, "\n\r" between.
std::string AlertText(const std::string& title, const std::string& detail) {
    return title + "\n\r" + detail + "\n\r" + "\n\r";
}

TEST_F(ErrorAlertTest, OutOfMemoryShowsTheFullErrorText) {
    tolvane::ShowErrorAlert(1, 19200, 3, ZM_FOUR_CHAR('!', 'M', 'E', 'M'),
                            "SetupGlobals:NewHandleClear");
    zm::host::Alert alert = OnlyAlert();
    EXPECT_EQ(alert.kind, AlertKind::Error);
    EXPECT_EQ(alert.text,
              AlertText("Document Info Error:\r\rThe filter cannot complete because there "
                        "isn^}t enough memory (RAM) available:\r\r",
                        "Filter error:!MEM  SetupGlobals:NewHandleClear"));
}

TEST_F(ErrorAlertTest, ASentenceOf81CharactersJoinsTheTitleWithTwoBlanks) {
    tolvane::ShowErrorAlert(1, 19200, 4, 0, "Here");
    EXPECT_EQ(OnlyAlert().text, AlertText("Document Info Error:  " + kLongSentence + "\r\r", "Here"));
}

TEST_F(ErrorAlertTest, ASentenceOf80CharactersStillGetsItsOwnParagraph) {
    tolvane::ShowErrorAlert(1, 19200, 5, 0, "Here");
    EXPECT_EQ(OnlyAlert().text,
              AlertText("Document Info Error:\r\r" + kLimitSentence + "\r\r", "Here"));
}

TEST_F(ErrorAlertTest, CautionIsAWarningAlertWithItsOwnWord) {
    tolvane::ShowErrorAlert(2, 19200, 1, 0, "Here");
    zm::host::Alert alert = OnlyAlert();
    EXPECT_EQ(alert.kind, AlertKind::Warning);
    EXPECT_EQ(alert.text,
              AlertText("Document Info Caution:\r\rThe filter cannot complete because of an "
                        "error:\r\r",
                        "Here"));
}

TEST_F(ErrorAlertTest, NoteIsAMessageAlertWithItsOwnWord) {
    tolvane::ShowErrorAlert(3, 19200, 2, 0, "Here");
    zm::host::Alert alert = OnlyAlert();
    EXPECT_EQ(alert.kind, AlertKind::Message);
    EXPECT_EQ(alert.text,
              AlertText("Document Info Note:\r\rThe filter cannot complete because of a "
                        "resource error:\r\r",
                        "Here"));
}

TEST_F(ErrorAlertTest, SeverityZeroOrFourShowsNothing) {
    tolvane::ShowErrorAlert(0, 19200, 3, ZM_FOUR_CHAR('!', 'M', 'E', 'M'), "Here");
    tolvane::ShowErrorAlert(4, 19200, 3, ZM_FOUR_CHAR('!', 'M', 'E', 'M'), "Here");
    EXPECT_TRUE(runtime.alerts.empty());
}

TEST_F(ErrorAlertTest, ANegativeCodeIsShownAfterID) {
    tolvane::ShowErrorAlert(1, 19200, 1, -2, "DoTolvaneDlog:NewHandleClear()");
    // The number is printed with the format "%l", which has no conversion letter; the C
    // library prints nothing for such a conversion, so "ID = " meets the two blanks.
    EXPECT_EQ(OnlyAlert().text,
              AlertText("Document Info Error:\r\rThe filter cannot complete because of an "
                        "error:\r\r",
                        "ID =   DoTolvaneDlog:NewHandleClear()"));
}

TEST_F(ErrorAlertTest, ASentenceTheTableLacksLeavesItsPlaceEmpty) {
    tolvane::ShowErrorAlert(1, 19200, 9, 0, "Here");
    EXPECT_EQ(OnlyAlert().text, AlertText("Document Info Error:\r\r\r\r", "Here"));
}

TEST_F(ErrorAlertTest, TheDetailLineStopsAt255Characters) {
    std::string context(300, 'c');
    tolvane::ShowErrorAlert(1, 19200, 1, 0, context.c_str());
    EXPECT_EQ(OnlyAlert().text,
              AlertText("Document Info Error:\r\rThe filter cannot complete because of an "
                        "error:\r\r",
                        std::string(255, 'c')));
}

TEST_F(ErrorAlertTest, TheTitleFollowsTheHostLocale) {
    runtime.localizer.AddTranslation("$$$/LMBKestovar/STR/19300/1", " Fehler:");
    tolvane::ShowErrorAlert(1, 19200, 4, 0, "Here");
    EXPECT_EQ(OnlyAlert().text, AlertText("Document Info Fehler:  " + kLongSentence + "\r\r", "Here"));
}

}  // namespace
