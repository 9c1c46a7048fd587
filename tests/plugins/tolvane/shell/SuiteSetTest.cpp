#include "support/TestHost.hpp"

#include <shell/SuiteSet.hpp>

#include <gtest/gtest.h>

#include <set>
#include <string>

namespace {

using zm::test::TestHost;

std::size_t RowCount() {
    std::size_t rows = 0;
    while (tolvane::kRequiredSuites[rows].kind != ZM_SUITE_KIND_END) {
        ++rows;
    }
    return rows;
}

TEST(SuiteSetTest, TheTableHas138DistinctRowsTheFirstThreeForTheFramework) {
    ASSERT_EQ(RowCount(), 138u);
    std::set<std::string> names;
    for (std::size_t row = 0; row < RowCount(); ++row) {
        const ZMSuiteDeclaration& declared = tolvane::kRequiredSuites[row];
        names.insert(declared.name);
        EXPECT_EQ(declared.kind, row < 3 ? ZM_SUITE_KIND_FRAMEWORK : ZM_SUITE_KIND_REQUIRED)
            << declared.name;
        EXPECT_NE(declared.target, nullptr);
    }
    EXPECT_EQ(names.size(), 138u);
    EXPECT_STREQ(tolvane::kRequiredSuites[0].name, "PXM Basic Suite");
    EXPECT_STREQ(tolvane::kRequiredSuites[1].name, "ZM Menu Suite");
    EXPECT_STREQ(tolvane::kRequiredSuites[2].name, "ZM Notifier Suite");
}

TEST(SuiteSetTest, EveryRowIsAcquiredOnceByStartUpAndReleasedOnceByShutDown) {
    TestHost host;
    ASSERT_EQ(host.Start(), ZM_ERR_NONE);
    for (std::size_t row = 0; row < RowCount(); ++row) {
        const ZMSuiteDeclaration& declared = tolvane::kRequiredSuites[row];
        const auto* held =
            host.Runtime().suites.Find(declared.name, static_cast<int32_t>(declared.version));
        ASSERT_NE(held, nullptr) << declared.name << " is not offered by the host";
        // "LMB Plugin Suite" is also acquired on its own, lazily, by the framework calls.
        int64_t own = std::string(declared.name) == "LMB Plugin Suite" ? 1 : 0;
        EXPECT_EQ(held->acquired - held->released, 1 + own) << declared.name;
    }
    ASSERT_EQ(host.Stop(), ZM_ERR_NONE);
    EXPECT_TRUE(host.NoSuiteHeld());
}

TEST(SuiteSetTest, ShutDownReturnsEveryBlockOfContextAndSuite) {
    TestHost host;
    ASSERT_EQ(host.Start(), ZM_ERR_NONE);
    ASSERT_EQ(host.Stop(), ZM_ERR_NONE);
    EXPECT_EQ(host.Runtime().contexts.Depth(), 0);
    EXPECT_TRUE(host.NoSuiteHeld());
    EXPECT_TRUE(host.Runtime().menus.Items().empty());
    EXPECT_TRUE(host.Runtime().notifiers.All().empty());
}

}  // namespace
