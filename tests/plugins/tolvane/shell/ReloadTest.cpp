#include "support/TestHost.hpp"

#include <shell/Globals.hpp>

#include <zelmora/ZMLiveShapesSuite.h>

#include <gtest/gtest.h>

#include <cstring>

namespace {

using zm::test::TestHost;

tolvane::Globals& GlobalsOf(TestHost& host) {
    return *static_cast<tolvane::Globals*>(host.Tolvane().globals);
}

TEST(ReloadTest, AReloadWithAGlobalsBlockKeepsEveryField) {
    TestHost host;
    ASSERT_EQ(host.Start(), ZM_ERR_NONE);
    tolvane::Globals& globals = GlobalsOf(host);
    // What a session would have left behind: a category, selection-only off, a saved
    // notification.
    int marker = 0;
    globals.mode = 7;
    globals.selectionOnly = 0;
    globals.lastNotifyData = &marker;
    globals.saving = 0;
    const tolvane::Globals before = globals;
    const std::size_t blocks = host.Runtime().blocks.TotalAllocations();

    ASSERT_EQ(host.Runtime().plugins.Unload(host.Tolvane()), ZM_ERR_NONE);
    ASSERT_EQ(host.Runtime().plugins.Reload(host.Tolvane()), ZM_ERR_NONE);

    ASSERT_EQ(host.Tolvane().globals, &globals);  // the host handed back the same block
    EXPECT_EQ(globals.mode, 7);
    EXPECT_EQ(globals.selectionOnly, 0);
    EXPECT_EQ(globals.lastNotifyData, &marker);
    EXPECT_EQ(globals.saving, 0);
    EXPECT_EQ(globals.menuItem, before.menuItem);
    EXPECT_EQ(globals.selectionNotifier, before.selectionNotifier);
    EXPECT_EQ(globals.propertiesNotifier, before.propertiesNotifier);
    EXPECT_EQ(globals.cropAreaNotifier, before.cropAreaNotifier);
    EXPECT_EQ(globals.panel, nullptr);
    // Adopted as it stands: no new block was asked for.
    EXPECT_EQ(host.Runtime().blocks.TotalAllocations(), blocks);
}

TEST(ReloadTest, UnloadDropsThePanelPointerButKeepsTheBlock) {
    TestHost host;
    ASSERT_EQ(host.Start(), ZM_ERR_NONE);
    tolvane::Globals& globals = GlobalsOf(host);
    // Any non-null value stands for a panel: unload must forget it without touching it.
    globals.panel = reinterpret_cast<tolvane::TolvanePanel*>(&globals);
    ASSERT_EQ(host.Runtime().plugins.Unload(host.Tolvane()), ZM_ERR_NONE);
    EXPECT_EQ(host.Tolvane().globals, &globals);
    EXPECT_EQ(globals.panel, nullptr);
}

TEST(ReloadTest, UnloadGivesBackEverySuiteAndReloadTakesThemAgain) {
    TestHost host;
    ASSERT_EQ(host.Start(), ZM_ERR_NONE);
    ASSERT_EQ(host.Runtime().plugins.Unload(host.Tolvane()), ZM_ERR_NONE);
    EXPECT_TRUE(host.NoSuiteHeld());

    ASSERT_EQ(host.Runtime().plugins.Reload(host.Tolvane()), ZM_ERR_NONE);
    const auto* art = host.Runtime().suites.Find("ZM Art Suite", 17);
    ASSERT_NE(art, nullptr);
    EXPECT_EQ(art->acquired, 2);
    EXPECT_EQ(art->released, 1);
    // Reload also takes the optional suites.
    const auto* shapes =
        host.Runtime().suites.Find(ZM_LIVE_SHAPES_SUITE_NAME, ZM_LIVE_SHAPES_SUITE_VERSION);
    ASSERT_NE(shapes, nullptr);
    EXPECT_EQ(shapes->acquired - shapes->released, 1);

    ASSERT_EQ(host.Stop(), ZM_ERR_NONE);
    EXPECT_TRUE(host.NoSuiteHeld());
}

TEST(ReloadTest, TheFirstLoadIsNotTreatedAsAReload) {
    TestHost host;
    ASSERT_EQ(host.Start(), ZM_ERR_NONE);
    // Only a reload acquires the optional suites before the application has started.
    const auto* shapes =
        host.Runtime().suites.Find(ZM_LIVE_SHAPES_SUITE_NAME, ZM_LIVE_SHAPES_SUITE_VERSION);
    ASSERT_NE(shapes, nullptr);
    EXPECT_EQ(shapes->acquired, 0);
}

TEST(ReloadTest, TheApplicationStartedNotifierTakesTheOptionalSuitesOnce) {
    TestHost host;
    ASSERT_EQ(host.Start(), ZM_ERR_NONE);
    host.Runtime().plugins.Notify("ZM Application Started Notifier", nullptr);
    host.Runtime().plugins.Notify("ZM Application Started Notifier", nullptr);
    const auto* shapes =
        host.Runtime().suites.Find(ZM_LIVE_SHAPES_SUITE_NAME, ZM_LIVE_SHAPES_SUITE_VERSION);
    EXPECT_EQ(shapes->acquired, 1);
    ASSERT_EQ(host.Stop(), ZM_ERR_NONE);
    EXPECT_TRUE(host.NoSuiteHeld());
}

}  // namespace
