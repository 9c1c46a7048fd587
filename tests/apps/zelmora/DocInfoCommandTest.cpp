#include "DocInfoCommand.hpp"
#include "ExitCodes.hpp"

#include "support/ScratchFolder.hpp"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <sstream>

namespace zelmora {
namespace {

class DocInfoCommandTest : public ::testing::Test {
protected:
    void SetUp() override {
        options.file = scratch_.Path() / "pair.svg";
        std::ofstream(options.file)
            << "<svg xmlns=\"http://www.w3.org/2000/svg\" width=\"100\" height=\"100\">"
               "<g id=\"pair\"><rect id=\"a\" width=\"10\" height=\"10\"/></g></svg>";
        session.pluginFolders = {ZELMORA_TEST_PLUGIN_DIR};
    }

    int Run() { return RunDocInfoCommand(session, options, out, errors); }

    SessionOptions session;
    DocInfoOptions options;
    std::ostringstream out;
    std::ostringstream errors;

private:
    zm::test::ScratchFolder scratch_;
};

TEST_F(DocInfoCommandTest, WithoutSelectSelectionOnlyStaysOff) {
    EXPECT_EQ(Run(), kExitDone) << errors.str();
    EXPECT_FALSE(options.selectionOnly);
}

TEST_F(DocInfoCommandTest, SelectingTurnsSelectionOnlyOn) {
    options.selectIds = {"pair"};
    EXPECT_EQ(Run(), kExitDone) << errors.str();
    EXPECT_TRUE(options.selectionOnly);
}

TEST_F(DocInfoCommandTest, AnUnknownIdStopsBeforeAnythingStarts) {
    options.selectIds = {"a", "ghost"};
    EXPECT_EQ(Run(), kExitBadArguments);
    EXPECT_FALSE(options.selectionOnly);
    EXPECT_EQ(errors.str(),
              "zelmora: " + options.file.string() + " has no element with id \"ghost\"\n");
}

}  // namespace
}  // namespace zelmora
