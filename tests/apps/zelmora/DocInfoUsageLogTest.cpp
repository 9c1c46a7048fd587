#include "support/CommandRun.hpp"
#include "support/FileBytes.hpp"
#include "support/ScratchFolder.hpp"

#include <gtest/gtest.h>

#include <filesystem>
#include <sstream>
#include <string>
#include <utility>
#include <vector>

namespace zm::test {
namespace {

namespace fs = std::filesystem;

constexpr int kExitDone = 0;
constexpr int kExitBadArguments = 2;

class DocInfoUsageLogTest : public ::testing::Test {
protected:
    void SetUp() override {
        WriteFileBytes(document_,
                       "<svg xmlns=\"http://www.w3.org/2000/svg\" width=\"100\" height=\"100\">"
                       "<rect id=\"a\" width=\"10\" height=\"10\"/></svg>");
    }

    // docinfo with the usage log and the other options, then the document.
    CommandResult DocInfo(const fs::path& log, std::vector<std::string> options = {},
                          const fs::path& document = {}) const {
        std::vector<std::string> arguments = {"docinfo", "--usage-log", log.string(), "-q"};
        arguments.insert(arguments.end(), options.begin(), options.end());
        arguments.push_back(document.empty() ? document_.string() : document.string());
        return RunCommand(ZELMORA_TEST_COMMAND, arguments);
    }

    // Every line the command appends is one group: {"group": NAME, "entries": [...]}.
    static void ExpectGroupLines(const std::string& bytes) {
        std::istringstream lines(bytes);
        for (std::string line; std::getline(lines, line);) {
            EXPECT_EQ(line.rfind("{\"group\": \"", 0), 0u) << line;
            EXPECT_NE(line.find("\", \"entries\": ["), std::string::npos) << line;
            EXPECT_TRUE(line.ends_with("]}")) << line;
        }
        EXPECT_TRUE(bytes.empty() || bytes.back() == '\n');
    }

    ScratchFolder scratch_;
    fs::path document_ = scratch_.Path() / "one.svg";
};

TEST_F(DocInfoUsageLogTest, AUsageLogInAMissingFolderIsABadArgumentNamingThePathAndTheReason) {
    fs::path log = scratch_.Path() / "missing" / "usage.jsonl";
    fs::path report = scratch_.Path() / "report.txt";
    CommandResult run = DocInfo(log, {"-o", report.string()});
    EXPECT_EQ(run.signal, 0);
    EXPECT_EQ(run.exitStatus, kExitBadArguments) << run.errors;
    EXPECT_EQ(run.errors,
              "zelmora: cannot open the usage log " + log.string() + ": No such file or directory\n");
    EXPECT_EQ(run.output, "");
    EXPECT_FALSE(fs::exists(report));  // refused before the report was made
    EXPECT_FALSE(fs::exists(log.parent_path()));
}

TEST_F(DocInfoUsageLogTest, AFolderGivenAsTheUsageLogIsABadArgument) {
    CommandResult run = DocInfo(scratch_.Path(), {"-c", "document"});
    EXPECT_EQ(run.exitStatus, kExitBadArguments) << run.errors;
    EXPECT_EQ(run.errors, "zelmora: cannot open the usage log " + scratch_.Path().string() +
                              ": Is a directory\n");
    EXPECT_EQ(run.output, "");  // the category's text was never printed
}

TEST_F(DocInfoUsageLogTest, TheUsageLogIsCheckedBeforeTheDocumentIsRead) {
    // A missing document would be status 3; the log is opened first, so its error wins.
    fs::path log = scratch_.Path() / "missing" / "usage.jsonl";
    CommandResult run = DocInfo(log, {}, scratch_.Path() / "absent.svg");
    EXPECT_EQ(run.exitStatus, kExitBadArguments) << run.errors;
    EXPECT_EQ(run.errors.find("absent.svg"), std::string::npos) << run.errors;
}

TEST_F(DocInfoUsageLogTest, AUsageLogThatDoesNotExistIsCreatedAndHoldsOnlyGroupLines) {
    fs::path log = scratch_.Path() / "usage.jsonl";
    CommandResult run = DocInfo(log, {"-c", "document"});
    EXPECT_EQ(run.exitStatus, kExitDone) << run.errors;
    EXPECT_EQ(run.errors, "");
    ASSERT_TRUE(fs::is_regular_file(log));
    ExpectGroupLines(ReadFileBytes(log));
}

TEST_F(DocInfoUsageLogTest, TwoRunsAppendTheLinesOfBothAfterWhatTheFileHeld) {
    fs::path once = scratch_.Path() / "once.jsonl";
    ASSERT_EQ(DocInfo(once, {"-c", "document"}).exitStatus, kExitDone);
    const std::string oneRun = ReadFileBytes(once);

    fs::path twice = scratch_.Path() / "twice.jsonl";
    WriteFileBytes(twice, "earlier line\n");
    for (int run = 0; run < 2; ++run) {
        CommandResult result = DocInfo(twice, {"-c", "document"});
        ASSERT_EQ(result.exitStatus, kExitDone) << result.errors;
    }
    // The same document logs the same groups each time it closes, so two runs leave one run's
    // lines twice, after the line that was there before, which stays as it was.
    EXPECT_EQ(ReadFileBytes(twice), "earlier line\n" + oneRun + oneRun);
}

// The fixture's one 10 x 10 rect, closed: the content group, then one group for the rect,
// which is a live shape of four corners, all square (radius 0, the same type and rounding).
// One artboard the size of the document, one implicit layer, one closed path of 4 points; the
// rect is filled black, an RGB paint, so nothing is grayscale; no resources; the document's
// colour model is RGB by default.
TEST_F(DocInfoUsageLogTest, ClosingTheDocumentLogsItsContentAndItsLiveShapes) {
    fs::path log = scratch_.Path() / "usage.jsonl";
    CommandResult run = DocInfo(log, {"-c", "document"});
    ASSERT_EQ(run.exitStatus, kExitDone) << run.errors;
    const std::vector<std::pair<std::string, std::string>> content = {
        {"Artboards", "1"},          {"Symbol Patterns", "0"},
        {"TopLevelLayers", "1"},     {"OpenPaths", "0"},
        {"ClosedPaths", "1"},        {"PointObjects", "4"},
        {"CompoundPaths", "0"},      {"CompoundShapes", "0"},
        {"GradientMeshes", "0"},     {"PointTypeObjects", "0"},
        {"AreaTypeObjects", "0"},    {"TypeOnPathObjects", "0"},
        {"ClippingMasks", "0"},      {"OpacityMasks", "0"},
        {"GrayScaleObjects", "0"},   {"GraphicStylesUsed", "0"},
        {"BrushesUsed", "0"},        {"SpotColorsUsed", "0"},
        {"PatternObjectsUsed", "0"}, {"GlobalProcessColorsUsed", "0"},
        {"GradientObjectsUsed", "0"}, {"FontsUsed", "0"},
        {"LinkedImages", "0"},       {"EmbeddedImages", "0"},
        {"TracingObjects", "0"},     {"BlendObjects", "0"},
        {"FlareObjects", "0"},       {"EnvelopeObjects", "0"},
        {"GraphObjects", "0"},       {"Fontvane Font in document", "No"},
        {"Color Model", "RGB"},
    };
    std::string expected = "{\"group\": \"Document Content Information\", \"entries\": [";
    for (size_t index = 0; index < content.size(); ++index) {
        expected += (index == 0 ? "[\"" : ", [\"") + content[index].first + "\", \"" +
                    content[index].second + "\"]";
    }
    expected += "]}\n";
    expected += "{\"group\": \"Shape Document Close Group\", \"entries\": ["
                "[\"Shape Corner Type\", \"Same Value\"], "
                "[\"Shape Rounding Type\", \"Same Value\"], "
                "[\"Shape Radii\", \"Same Value\"]]}\n";
    EXPECT_EQ(ReadFileBytes(log), expected);
}

}  // namespace
}  // namespace zm::test
