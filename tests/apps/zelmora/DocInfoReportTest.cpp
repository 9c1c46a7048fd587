#include "support/CommandRun.hpp"
#include "support/FileBytes.hpp"
#include "support/ReportHeading.hpp"
#include "support/ScratchFolder.hpp"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <optional>
#include <string>
#include <vector>

namespace zm::test {
namespace {

namespace fs = std::filesystem;

constexpr int kExitDone = 0;
constexpr int kExitNotWritten = 1;

// The report without its heading line, whose date is the clock's: the heading is "Document
// Info - ", asctime's 24 characters and "\n", then "\r\n" and the file's own line end.
std::string AfterHeading(const std::string& report) {
    std::optional<std::string> rest = AfterReportHeading(report, "\r\n");
    if (!rest) {
        ADD_FAILURE() << "no heading of the expected form in: " << report.substr(0, 60);
        return {};
    }
    return *rest;
}

class DocInfoReportTest : public ::testing::Test {
protected:
    void SetUp() override {
        file_ = scratch_.Path() / "two.svg";
        std::ofstream(file_) << "<svg xmlns=\"http://www.w3.org/2000/svg\" width=\"100\" "
                                "height=\"100\"><rect id=\"a\" width=\"10\" height=\"10\"/>"
                                "<rect id=\"b\" x=\"20\" width=\"10\" height=\"10\"/></svg>";
    }

    CommandResult DocInfo(std::vector<std::string> options) const {
        std::vector<std::string> arguments = {"docinfo", "-q"};
        arguments.insert(arguments.end(), options.begin(), options.end());
        arguments.push_back(file_.string());
        return RunCommand(ZELMORA_TEST_COMMAND, arguments);
    }

    ScratchFolder scratch_;
    fs::path file_;
};

// Without --category and --output the whole report goes to standard output, the same bytes
// as the file Save writes (the heading's clock aside).
TEST_F(DocInfoReportTest, TheWholeReportOnStandardOutputIsWhatSaveWrites) {
    CommandResult printed = DocInfo({});
    ASSERT_EQ(printed.exitStatus, kExitDone) << printed.errors;
    EXPECT_EQ(printed.errors, "");

    const fs::path saved = scratch_.Path() / "report.txt";
    CommandResult saving = DocInfo({"--output", saved.string()});
    ASSERT_EQ(saving.exitStatus, kExitDone) << saving.errors;
    EXPECT_EQ(saving.output, "");  // the report went into the file only
    const std::string file = ReadFileBytes(saved);

    const std::string body = AfterHeading(printed.output);
    EXPECT_EQ(body, AfterHeading(file));
    // The separator, then the Document section naming the file.
    EXPECT_EQ(body.rfind("\r\n" + std::string(77, '-') + "\r\n\r\nDocument:\r\nName: " +
                             file_.string() + "\r\n",
                         0),
              0u)
        << body.substr(0, 200);
    // Two closed rectangles of four points each.
    EXPECT_NE(body.find("\r\nPaths: 2 (0 open, 2 closed, 8 points, length = "), std::string::npos);
    EXPECT_EQ(body.substr(body.size() - 6), "\r\n\r\n\r\n");
}

// The selection report has the document report's heading; only what is counted changes.
TEST_F(DocInfoReportTest, TheSelectionReportHasTheSameHeading) {
    CommandResult printed = DocInfo({"--select", "b"});
    ASSERT_EQ(printed.exitStatus, kExitDone) << printed.errors;
    const std::string body = AfterHeading(printed.output);
    EXPECT_NE(body.find("\r\nPaths: 1 (0 open, 1 closed, 4 points, length = "), std::string::npos);
}

TEST_F(DocInfoReportTest, ACategoryAndAnOutputFileTogetherDoBoth) {
    const fs::path saved = scratch_.Path() / "report.txt";
    CommandResult run = DocInfo({"--category", "objects", "--output", saved.string()});
    ASSERT_EQ(run.exitStatus, kExitDone) << run.errors;
    EXPECT_EQ(run.output.rfind("Objects:\r\n\r\nPaths: 2 (", 0), 0u) << run.output;
    EXPECT_NE(AfterHeading(ReadFileBytes(saved)).find("\r\nObjects:\r\nPaths: 2 ("),
              std::string::npos);
}

// A folder that does not exist: no file, one line naming the target, exit status 1.
TEST_F(DocInfoReportTest, AReportThatCannotBeWrittenIsOneLineAndNoFile) {
    const fs::path target = scratch_.Path() / "missing" / "report.txt";
    CommandResult run = DocInfo({"--output", target.string()});
    EXPECT_EQ(run.signal, 0);
    EXPECT_EQ(run.exitStatus, kExitNotWritten);
    EXPECT_EQ(run.errors, "zelmora: the report could not be written to " + target.string() + "\n");
    EXPECT_EQ(run.output, "");
    EXPECT_FALSE(fs::exists(target.parent_path()));
}

// An older file at the target is replaced whole; nothing of it remains.
TEST_F(DocInfoReportTest, AnOlderFileIsReplacedWhole) {
    const fs::path saved = scratch_.Path() / "report.txt";
    std::ofstream(saved) << std::string(200000, '#');
    CommandResult run = DocInfo({"--output", saved.string()});
    ASSERT_EQ(run.exitStatus, kExitDone) << run.errors;
    const std::string file = ReadFileBytes(saved);
    EXPECT_EQ(file.find('#'), std::string::npos);
    EXPECT_EQ(file.rfind("Document Info - ", 0), 0u);
}

// An output that names a folder gets the proposed name in it: the document's name without
// its extension and " Info.txt".
TEST_F(DocInfoReportTest, AnOutputFolderGetsTheProposedName) {
    CommandResult run = DocInfo({"--output", scratch_.Path().string()});
    ASSERT_EQ(run.exitStatus, kExitDone) << run.errors;
    EXPECT_EQ(ReadFileBytes(scratch_.Path() / "two Info.txt").rfind("Document Info - ", 0), 0u);
}

}  // namespace
}  // namespace zm::test
