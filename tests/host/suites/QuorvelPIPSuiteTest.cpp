#include <gtest/gtest.h>
#include <zelmora/ZMQuorvelPIPSuite.h>

#include <string>

#include "host/suites/SuiteFixture.hpp"
#include "support/FileBytes.hpp"
#include "support/ScratchFolder.hpp"

namespace zm::host {
namespace {

class QuorvelPIPSuiteTest : public zm::test::SuiteFixture {
protected:
    void SetUp() override { Acquire(ZM_QUORVEL_PIP_SUITE_NAME, ZM_QUORVEL_PIP_SUITE_VERSION, usage); }

    void OpenLog() { runtime.usage.Open(file_); }
    std::string LogBytes() const { return zm::test::ReadFileBytes(file_); }

    ZMUsageGroup Begin(const char* name) {
        ZMUsageGroup group = nullptr;
        EXPECT_EQ(usage->BeginGroup(name, &group), ZM_ERR_NONE);
        EXPECT_NE(group, nullptr);
        return group;
    }

    const ZMQuorvelPIPSuite* usage = nullptr;
    zm::test::ScratchFolder scratch_;
    std::filesystem::path file_ = scratch_.Path() / "usage.jsonl";
};

TEST_F(QuorvelPIPSuiteTest, TheHostLogsOnlyOnceALogFileIsOpen) {
    int32_t logging = -1;
    ASSERT_EQ(usage->IsLogging(&logging), ZM_ERR_NONE);
    EXPECT_EQ(logging, 0);
    OpenLog();
    ASSERT_EQ(usage->IsLogging(&logging), ZM_ERR_NONE);
    EXPECT_EQ(logging, 1);
    EXPECT_EQ(usage->IsLogging(nullptr), ZM_ERR_BAD_ARGUMENT);
}

TEST_F(QuorvelPIPSuiteTest, GroupsGivenToAHostWithoutALogAreAcceptedAndDropped) {
    ZMUsageGroup group = Begin("Document Content Information");
    EXPECT_EQ(usage->AddEntry(group, "Artboards", "1"), ZM_ERR_NONE);
    OpenLog();
    runtime.usage.Close();
    EXPECT_EQ(LogBytes(), "");  // the group came before the file, so it went nowhere
}

TEST_F(QuorvelPIPSuiteTest, EachGroupIsOneLineOfItsEntriesInTheOrderAdded) {
    OpenLog();
    ZMUsageGroup shape = Begin("Shape Document Close Group");
    EXPECT_EQ(usage->AddEntry(shape, "Shape Corner Type", "Same Value"), ZM_ERR_NONE);
    EXPECT_EQ(usage->AddEntry(shape, "Shape Rounding Type", "Same Value"), ZM_ERR_NONE);
    EXPECT_EQ(usage->AddEntry(shape, "Shape Radii", "Different Value"), ZM_ERR_NONE);
    ZMUsageGroup second = Begin("Shape Document Close Group");
    EXPECT_EQ(usage->AddEntry(second, "Shape Radii", "Same Value"), ZM_ERR_NONE);
    runtime.usage.Flush();
    EXPECT_EQ(LogBytes(),
              "{\"group\": \"Shape Document Close Group\", \"entries\": [[\"Shape Corner Type\", "
              "\"Same Value\"], [\"Shape Rounding Type\", \"Same Value\"], [\"Shape Radii\", "
              "\"Different Value\"]]}\n"
              "{\"group\": \"Shape Document Close Group\", \"entries\": [[\"Shape Radii\", "
              "\"Same Value\"]]}\n");
}

TEST_F(QuorvelPIPSuiteTest, AGroupThatIsNoLongerCurrentIsABadArgument) {
    OpenLog();
    ZMUsageGroup first = Begin("First");
    ZMUsageGroup second = Begin("Second");
    EXPECT_NE(first, second);
    EXPECT_EQ(usage->AddEntry(first, "late", "1"), ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(usage->AddEntry(nullptr, "none", "1"), ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(usage->AddEntry(zm::test::ForeignHandle<ZMUsageGroup>(), "odd", "1"),
              ZM_ERR_BAD_ARGUMENT);
    runtime.usage.Flush();
    EXPECT_EQ(LogBytes(), "{\"group\": \"First\", \"entries\": []}\n"
                          "{\"group\": \"Second\", \"entries\": []}\n");
}

TEST_F(QuorvelPIPSuiteTest, MissingOrMalformedTextsAreBadArguments) {
    OpenLog();
    ZMUsageGroup group = nullptr;
    EXPECT_EQ(usage->BeginGroup(nullptr, &group), ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(usage->BeginGroup("Name", nullptr), ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(usage->BeginGroup("", &group), ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(usage->BeginGroup("\xc3(", &group), ZM_ERR_BAD_ARGUMENT);  // a lead byte cut short
    group = Begin("Checked");
    EXPECT_EQ(usage->AddEntry(group, nullptr, "v"), ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(usage->AddEntry(group, "k", nullptr), ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(usage->AddEntry(group, "", "v"), ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(usage->AddEntry(group, "k", "\xff"), ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(usage->AddEntry(group, "Color Model", ""), ZM_ERR_NONE);  // a value may be empty
    runtime.usage.Flush();
    EXPECT_EQ(LogBytes(), "{\"group\": \"Checked\", \"entries\": [[\"Color Model\", \"\"]]}\n");
}

TEST_F(QuorvelPIPSuiteTest, Utf8TextsAndCharactersJsonEscapesReachTheLineExactly) {
    OpenLog();
    ZMUsageGroup group = Begin("Caf\xc3\xa9");
    EXPECT_EQ(usage->AddEntry(group, "say \"hi\"", "a\\b\r\n"), ZM_ERR_NONE);
    runtime.usage.Flush();
    // é stays its two UTF-8 bytes; the quotes, backslash, CR and LF take JSON's short escapes.
    EXPECT_EQ(LogBytes(), "{\"group\": \"Caf\xc3\xa9\", \"entries\": [[\"say \\\"hi\\\"\", "
                          "\"a\\\\b\\r\\n\"]]}\n");
}

}  // namespace
}  // namespace zm::host
