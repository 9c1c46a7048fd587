#include "support/TestHost.hpp"

#include <shell/Globals.hpp>

#include <zelmora/ZMMenuSuite.h>
#include <zelmora/ZMNotifierSuite.h>
#include <zelmora/ZMTextFrameSuite.h>

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace {

using zm::test::TestHost;

const tolvane::Globals& GlobalsOf(TestHost& host) {
    return *static_cast<const tolvane::Globals*>(host.Tolvane().globals);
}

// The declared notifiers, in declaration order.
const std::vector<std::string> kNotifiers = {
    "ZM Art Selection Changed Notifier",  "ZM Art Properties Changed Notifier",
    "ZM Document Changed Notifier",       "ZM Document About To Close Notifier",
    "ZM Document Closed Notifier",        "ZM Document Opened Notifier",
    "ZM Document Profiles Changed Notifier", "ZM Application Started Notifier",
    "ZM Preference Changed Notifier",     "ZM Command Notifier: After Art Setup",
    "ZM Document Crop Area Modified Notifier",
};

TEST(StartupTest, StartUpCreatesTheGlobalsWithTheirInitialValues) {
    TestHost host;
    ASSERT_EQ(host.Start(), ZM_ERR_NONE);
    ASSERT_NE(host.Tolvane().globals, nullptr);
    const tolvane::Globals& globals = GlobalsOf(host);
    EXPECT_EQ(globals.mode, 0);
    EXPECT_EQ(globals.panel, nullptr);
    EXPECT_EQ(globals.selectionOnly, 1);
    EXPECT_EQ(globals.lastNotifyData, nullptr);
    EXPECT_EQ(globals.saving, 0);
    EXPECT_TRUE(host.Runtime().alerts.empty()) << host.AlertTexts();
}

TEST(StartupTest, TheMenuItemIsRegisteredInToolPalettesAndKept) {
    TestHost host;
    ASSERT_EQ(host.Start(), ZM_ERR_NONE);
    const auto& items = host.Runtime().menus.Items();
    ASSERT_EQ(items.size(), 1u);
    EXPECT_EQ(items[0]->group, "Tool Palettes");
    EXPECT_EQ(items[0]->text, "&Document Info");  // string 1 of list 16000
    EXPECT_EQ(static_cast<uint32_t>(items[0]->options), 0x9E000000u);
    EXPECT_EQ(GlobalsOf(host).menuItem, host.Runtime().menus.HandleOf(*items[0]));
}

TEST(StartupTest, ElevenNotifiersAreRegisteredInOrderAndThreeAreKept) {
    TestHost host;
    ASSERT_EQ(host.Start(), ZM_ERR_NONE);
    auto& center = host.Runtime().notifiers;
    std::vector<std::string> types;
    for (const auto& notifier : center.All()) {
        types.push_back(notifier->type);
        EXPECT_EQ(notifier->owner, "Tolvane");
    }
    EXPECT_EQ(types, kNotifiers);
    const tolvane::Globals& globals = GlobalsOf(host);
    EXPECT_EQ(globals.selectionNotifier, center.HandleOf(*center.All()[0]));
    EXPECT_EQ(globals.propertiesNotifier, center.HandleOf(*center.All()[1]));
    EXPECT_EQ(globals.cropAreaNotifier, center.HandleOf(*center.All()[10]));
}

TEST(StartupTest, EveryApplicationContextOpenedIsClosed) {
    TestHost host;
    ASSERT_EQ(host.Start(), ZM_ERR_NONE);
    EXPECT_GE(host.Runtime().contexts.TotalOpened(), 1);  // the globals are set up inside one
    EXPECT_EQ(host.Runtime().contexts.Depth(), 0);
}

TEST(StartupTest, OutOfMemoryForTheGlobalsShowsTheAlertAndFailsStartUp) {
    TestHost host;
    // The globals block is the first block start-up asks for.
    host.Runtime().faults.FailAllocation(1);
    EXPECT_EQ(host.Start(), ZM_FOUR_CHAR('!', 'M', 'E', 'M'));
    ASSERT_EQ(host.Runtime().alerts.size(), 1u);
    EXPECT_EQ(host.Runtime().alerts[0].kind, zm::host::AlertKind::Error);
    // Title: the display name (18000/1) and the severity word (19300/1, with its blank);
    // the sentence (19200/3) is 78 characters, so "\r\r" joins it; then "\r\r". Detail:
    // "Filter error:" (19300/4), the code's characters, two blanks, the context. The four
    // parts are joined by "\n\r"; the last two are empty.
    EXPECT_EQ(host.Runtime().alerts[0].text,
              "Document Info Error:\r\r"
              "The filter cannot complete because there isn^}t enough memory (RAM) available:"
              "\r\r\n\r"
              "Filter error:!MEM  SetupGlobals:NewHandleClear\n\r"
              "\n\r");
    EXPECT_EQ(host.Runtime().contexts.Depth(), 0);
}

TEST(StartupTest, AFailedStartUpLeavesNoSuiteHeld) {
    TestHost host;
    host.Runtime().faults.FailAllocation(1);
    ASSERT_NE(host.Start(), ZM_ERR_NONE);
    EXPECT_TRUE(host.NoSuiteHeld());
}

TEST(StartupTest, ASuiteTheHostCannotSupplyStopsStartUpBeforeTheHandlerRuns) {
    TestHost host;
    const ZMErr missing = ZM_FOUR_CHAR('G', 'O', 'N', 'E');
    host.Runtime().suites.FailAcquisition(ZM_TEXT_FRAME_SUITE_NAME, ZM_TEXT_FRAME_SUITE_VERSION,
                                          missing);
    EXPECT_EQ(host.Start(), missing);
    // The handler would have asked for the globals block first.
    EXPECT_EQ(host.Runtime().blocks.TotalAllocations(), 0u);
    EXPECT_TRUE(host.NoSuiteHeld());
    EXPECT_TRUE(host.Runtime().menus.Items().empty());
}

TEST(StartupTest, TheMenuTextFollowsTheHostLocale) {
    TestHost host;
    host.Runtime().localizer.AddTranslation("$$$/Tolvane/Str/Filter/1", "&Dokumentinformationen");
    ASSERT_EQ(host.Start(), ZM_ERR_NONE);
    ASSERT_EQ(host.Runtime().menus.Items().size(), 1u);
    EXPECT_EQ(host.Runtime().menus.Items()[0]->text, "&Dokumentinformationen");
}

}  // namespace
