#include <runtime/HostError.hpp>
#include <runtime/UsageLog.hpp>

#include "support/FileBytes.hpp"
#include "support/ScratchFolder.hpp"

#include <gtest/gtest.h>

#include <filesystem>
#include <string>
#include <utility>

namespace zm::host {
namespace {

namespace fs = std::filesystem;

class UsageLogTest : public ::testing::Test {
protected:
    std::string LogBytes() const { return test::ReadFileBytes(file_); }

    // The code a HostError from the call carries; ZM_ERR_NONE when it throws nothing.
    template <typename Call>
    static ZMErr CodeOf(Call&& call) {
        try {
            call();
            return ZM_ERR_NONE;
        } catch (const HostError& error) {
            return error.Code();
        }
    }

    test::ScratchFolder scratch_;
    fs::path file_ = scratch_.Path() / "usage.jsonl";
};

TEST_F(UsageLogTest, WithoutAFileGroupsAreAcceptedAndNothingIsKept) {
    UsageLog log;
    EXPECT_FALSE(log.IsLogging());
    UsageLog::GroupId group = log.BeginGroup("Counts");
    EXPECT_NE(group, 0u);
    EXPECT_NO_THROW(log.AddEntry(group, "Artboards", "1"));
    EXPECT_NO_THROW(log.Flush());
    EXPECT_EQ(log.WaitingGroups(), 0u);
    EXPECT_NO_THROW(log.Close());
}

TEST_F(UsageLogTest, AGroupReachesTheFileAsOneLineWhenTheNextGroupBegins) {
    UsageLog log;
    log.Open(file_);
    EXPECT_TRUE(log.IsLogging());
    UsageLog::GroupId first = log.BeginGroup("Counts");
    log.AddEntry(first, "Artboards", "1");
    log.AddEntry(first, "OpenPaths", "0");
    EXPECT_EQ(LogBytes(), "");  // still taking entries, so not complete yet
    log.BeginGroup("Shapes");
    // Name first, then the entries as [key, value] pairs, ", " and ": " between items as the
    // line format shows them, one "\n" at the end.
    EXPECT_EQ(LogBytes(),
              "{\"group\": \"Counts\", \"entries\": [[\"Artboards\", \"1\"], [\"OpenPaths\", "
              "\"0\"]]}\n");
}

TEST_F(UsageLogTest, FlushingCompletesTheCurrentGroupAndAGroupWithoutEntriesHasAnEmptyList) {
    UsageLog log;
    log.Open(file_);
    log.BeginGroup("Empty");
    log.Flush();
    EXPECT_EQ(LogBytes(), "{\"group\": \"Empty\", \"entries\": []}\n");
    log.Flush();  // nothing new is complete, so nothing more is written
    EXPECT_EQ(LogBytes(), "{\"group\": \"Empty\", \"entries\": []}\n");
}

TEST_F(UsageLogTest, EntriesAndGroupsKeepTheOrderTheyWereLoggedIn) {
    UsageLog log;
    log.Open(file_);
    UsageLog::GroupId group = log.BeginGroup("B");
    log.AddEntry(group, "z", "1");
    log.AddEntry(group, "a", "2");
    log.AddEntry(group, "z", "3");  // a repeated key is a second entry, not a replacement
    log.BeginGroup("A");
    log.Close();
    EXPECT_EQ(LogBytes(),
              "{\"group\": \"B\", \"entries\": [[\"z\", \"1\"], [\"a\", \"2\"], [\"z\", \"3\"]]}\n"
              "{\"group\": \"A\", \"entries\": []}\n");
}

TEST_F(UsageLogTest, OpeningAFileKeepsWhatItHoldsAndAppends) {
    test::WriteFileBytes(file_, "earlier line\n");
    UsageLog log;
    log.Open(file_);
    log.BeginGroup("Next");
    log.Close();
    EXPECT_EQ(LogBytes(), "earlier line\n{\"group\": \"Next\", \"entries\": []}\n");
}

TEST_F(UsageLogTest, TwoLogsOnOneFileInTurnLeaveTheLinesOfBoth) {
    for (const char* name : {"first", "second"}) {
        UsageLog log;
        log.Open(file_);
        log.AddEntry(log.BeginGroup("Run"), "run", name);
        log.Close();
    }
    EXPECT_EQ(LogBytes(),
              "{\"group\": \"Run\", \"entries\": [[\"run\", \"first\"]]}\n"
              "{\"group\": \"Run\", \"entries\": [[\"run\", \"second\"]]}\n");
}

TEST_F(UsageLogTest, TextsBeyondAsciiAreWrittenAsTheirOwnUtf8Bytes) {
    UsageLog log;
    log.Open(file_);
    // Two-, three- and four-byte characters: JSON lets UTF-8 stand for itself, so none of
    // them becomes a \u escape.
    log.AddEntry(log.BeginGroup("Gr\u00f6\u00dfe"), "\u65e5\u672c", "\U0001F600");
    log.Close();
    EXPECT_EQ(LogBytes(), "{\"group\": \"Gr\xc3\xb6\xc3\x9f" "e\", \"entries\": [[\"\xe6\x97\xa5"
                          "\xe6\x9c\xac\", \"\xf0\x9f\x98\x80\"]]}\n");
}

TEST_F(UsageLogTest, QuotesBackslashesAndControlCharactersAreEscaped) {
    UsageLog log;
    log.Open(file_);
    UsageLog::GroupId group = log.BeginGroup("a\"b");
    log.AddEntry(group, "back\\slash", "line\nbreak\ttab");
    // U+0001 and U+001F have no short escape, so they are \u with four lower-case hex digits;
    // "/" and DEL (U+007F) need no escape in JSON and stay as they are.
    log.AddEntry(group, std::string("\x01/\x1f\x7f", 4), "");
    log.Close();
    EXPECT_EQ(LogBytes(), "{\"group\": \"a\\\"b\", \"entries\": [[\"back\\\\slash\", "
                          "\"line\\nbreak\\ttab\"], [\"\\u0001/\\u001f\x7f\", \"\"]]}\n");
}

TEST_F(UsageLogTest, EmptyNamesAndKeysAndTextThatIsNotUtf8AreBadArguments) {
    UsageLog log;
    log.Open(file_);
    EXPECT_EQ(CodeOf([&] { log.BeginGroup(""); }), ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(CodeOf([&] { log.BeginGroup("\xff"); }), ZM_ERR_BAD_ARGUMENT);
    UsageLog::GroupId group = log.BeginGroup("Kept");
    EXPECT_EQ(CodeOf([&] { log.AddEntry(group, "", "value"); }), ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(CodeOf([&] { log.AddEntry(group, "\xc3", "cut"); }), ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(CodeOf([&] { log.AddEntry(group, "key", "\xe6\x97"); }), ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(CodeOf([&] { log.AddEntry(group, "empty", ""); }), ZM_ERR_NONE);
    log.Close();
    // The refused entries left the group as it was.
    EXPECT_EQ(LogBytes(), "{\"group\": \"Kept\", \"entries\": [[\"empty\", \"\"]]}\n");
}

TEST_F(UsageLogTest, OnlyTheGroupBegunLastTakesEntries) {
    UsageLog log;
    log.Open(file_);
    UsageLog::GroupId first = log.BeginGroup("First");
    UsageLog::GroupId second = log.BeginGroup("Second");
    EXPECT_NE(first, second);
    EXPECT_EQ(CodeOf([&] { log.AddEntry(first, "late", "1"); }), ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(CodeOf([&] { log.AddEntry(0, "none", "1"); }), ZM_ERR_BAD_ARGUMENT);
    log.Flush();
    // Flushed, the second group is complete too.
    EXPECT_EQ(CodeOf([&] { log.AddEntry(second, "late", "1"); }), ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(LogBytes(), "{\"group\": \"First\", \"entries\": []}\n"
                          "{\"group\": \"Second\", \"entries\": []}\n");
}

TEST_F(UsageLogTest, AFileInAMissingFolderCannotBeOpenedAndTheErrorNamesItAndWhy) {
    UsageLog log;
    fs::path missing = scratch_.Path() / "no-such-folder" / "usage.jsonl";
    try {
        log.Open(missing);
        FAIL() << "opened " << missing;
    } catch (const UsageLogError& error) {
        EXPECT_EQ(std::string(error.what()),
                  "cannot open the usage log " + missing.string() + ": No such file or directory");
    }
    EXPECT_FALSE(log.IsLogging());
}

TEST_F(UsageLogTest, AFolderCannotBeOpenedAsTheLog) {
    UsageLog log;
    try {
        log.Open(scratch_.Path());
        FAIL() << "opened a folder";
    } catch (const UsageLogError& error) {
        EXPECT_EQ(std::string(error.what()),
                  "cannot open the usage log " + scratch_.Path().string() + ": Is a directory");
    }
}

TEST_F(UsageLogTest, AGroupThatCannotBeWrittenIsReportedAndKeptForTheNextTry) {
    if (!fs::exists("/dev/full")) {
        GTEST_SKIP() << "no /dev/full, whose every write fails";
    }
    UsageLog log;
    log.Open("/dev/full");
    log.AddEntry(log.BeginGroup("First"), "k", "v");
    EXPECT_NO_THROW(log.BeginGroup("Second"));  // the failed write does not stop the new group
    EXPECT_EQ(log.WaitingGroups(), 1u);
    try {
        log.Flush();
        FAIL() << "a write to /dev/full succeeded";
    } catch (const UsageLogError& error) {
        EXPECT_EQ(std::string(error.what()),
                  "the usage log /dev/full could not be written: No space left on device");
    }
    EXPECT_EQ(log.WaitingGroups(), 2u);  // both groups, none dropped
    try {
        log.Close();
        FAIL() << "closing lost groups silently";
    } catch (const UsageLogError& error) {
        EXPECT_EQ(std::string(error.what()),
                  "2 usage group(s) could not be written to /dev/full: No space left on device");
    }
    EXPECT_FALSE(log.IsLogging());
}

TEST_F(UsageLogTest, TheEndOfTheLogWritesTheGroupStillOpen) {
    {
        UsageLog log;
        log.Open(file_);
        log.AddEntry(log.BeginGroup("Last"), "k", "v");
    }
    EXPECT_EQ(LogBytes(), "{\"group\": \"Last\", \"entries\": [[\"k\", \"v\"]]}\n");
}

TEST_F(UsageLogTest, AMovedLogKeepsItsFileAndItsCurrentGroup) {
    UsageLog opened;
    opened.Open(file_);
    UsageLog::GroupId group = opened.BeginGroup("Moved");
    UsageLog log;
    log = std::move(opened);
    EXPECT_TRUE(log.IsLogging());
    EXPECT_EQ(log.File(), file_);
    log.AddEntry(group, "k", "v");
    log.Close();
    EXPECT_EQ(LogBytes(), "{\"group\": \"Moved\", \"entries\": [[\"k\", \"v\"]]}\n");
}

TEST_F(UsageLogTest, OpeningAnotherFileCompletesTheGroupInTheFirst) {
    fs::path other = scratch_.Path() / "other.jsonl";
    UsageLog log;
    log.Open(file_);
    UsageLog::GroupId group = log.BeginGroup("One");
    log.Open(other);
    EXPECT_EQ(CodeOf([&] { log.AddEntry(group, "k", "v"); }), ZM_ERR_BAD_ARGUMENT);
    log.BeginGroup("Two");
    log.Close();
    EXPECT_EQ(LogBytes(), "{\"group\": \"One\", \"entries\": []}\n");
    EXPECT_EQ(test::ReadFileBytes(other), "{\"group\": \"Two\", \"entries\": []}\n");
}

}  // namespace
}  // namespace zm::host
