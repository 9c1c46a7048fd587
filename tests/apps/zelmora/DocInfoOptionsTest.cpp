#include "support/CommandRun.hpp"
#include "support/ScratchFolder.hpp"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <string>
#include <vector>

namespace zm::test {
namespace {

namespace fs = std::filesystem;

constexpr int kExitDone = 0;
constexpr int kExitBadArguments = 2;

class DocInfoOptionsTest : public ::testing::Test {
protected:
    void SetUp() override {
        file_ = scratch_.Path() / "two.svg";
        std::ofstream(file_) << "<svg xmlns=\"http://www.w3.org/2000/svg\" width=\"100\" "
                                "height=\"100\"><g id=\"pair\"><rect id=\"a\" width=\"10\" "
                                "height=\"10\"/><rect id=\"b\" x=\"20\" width=\"10\" "
                                "height=\"10\"/></g></svg>";
    }

    // docinfo with the options, then the document.
    CommandResult DocInfo(std::vector<std::string> options) const {
        std::vector<std::string> arguments = {"docinfo"};
        arguments.insert(arguments.end(), options.begin(), options.end());
        arguments.push_back(file_.string());
        return RunCommand(ZELMORA_TEST_COMMAND, arguments);
    }

    static void ExpectBadArguments(const CommandResult& run) {
        EXPECT_EQ(run.signal, 0);
        EXPECT_EQ(run.exitStatus, kExitBadArguments) << run.errors;
        EXPECT_EQ(run.output, "");
    }

    ScratchFolder scratch_;
    fs::path file_;
};

TEST_F(DocInfoOptionsTest, EveryOptionTogetherIsAccepted) {
    CommandResult run = DocInfo({"-c", "document", "-o", (scratch_.Path() / "out.txt").string(),
                                 "--select", "a", "--select", "pair", "--pref", "rulerType=0",
                                 "--pref", "x=1", "--locale", "de-DE", "-q"});
    EXPECT_EQ(run.exitStatus, kExitDone) << run.errors;
    EXPECT_EQ(run.errors, "");
}

TEST_F(DocInfoOptionsTest, NoProgressBarReachesAnErrorStreamThatIsNoTerminal) {
    // Standard error is a pipe here, so even without -q nothing is drawn on it.
    CommandResult run = DocInfo({"--category", "document"});
    EXPECT_EQ(run.exitStatus, kExitDone) << run.errors;
    EXPECT_EQ(run.errors, "");
}

TEST_F(DocInfoOptionsTest, APreferenceWithoutAnEqualsSignIsABadArgument) {
    ExpectBadArguments(DocInfo({"--pref", "rulerType"}));
}

TEST_F(DocInfoOptionsTest, APreferenceWithoutAKeyIsABadArgument) {
    ExpectBadArguments(DocInfo({"--pref", "=0"}));
}

TEST_F(DocInfoOptionsTest, AnUnknownCategoryIsABadArgument) {
    CommandResult run = DocInfo({"-c", "colours"});
    ExpectBadArguments(run);
    EXPECT_NE(run.errors.find("colours"), std::string::npos) << run.errors;
}

TEST_F(DocInfoOptionsTest, ALocaleThatIsNoTagIsABadArgument) {
    ExpectBadArguments(DocInfo({"--locale", "not a locale!"}));
}

TEST_F(DocInfoOptionsTest, SelectingAnUnknownIdIsOneLineNamingIt) {
    CommandResult run = DocInfo({"--select", "a", "--select", "nowhere"});
    ExpectBadArguments(run);
    EXPECT_NE(run.errors.find("\"nowhere\""), std::string::npos) << run.errors;
    EXPECT_EQ(run.errors.find('\n'), run.errors.size() - 1) << "more than one line:\n"
                                                            << run.errors;
}

TEST_F(DocInfoOptionsTest, SelectNeedsAnId) {
    ExpectBadArguments(RunCommand(ZELMORA_TEST_COMMAND, {"docinfo", file_.string(), "--select"}));
}

}  // namespace
}  // namespace zm::test
