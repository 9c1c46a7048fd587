#include "TerminalProgressBar.hpp"

#include <gtest/gtest.h>

#include <sstream>
#include <string>

namespace zelmora {
namespace {

TEST(TerminalProgressBarTest, HalfTheWorkFillsHalfTheBar) {
    std::ostringstream terminal;
    TerminalProgressBar bar(terminal);
    bar.Begin("Survey");
    terminal.str("");
    bar.Update(2, 4);
    // 2 of 4 is 15 of the 30 marks and 50 percent, padded to three places; the line is
    // redrawn from its start.
    EXPECT_EQ(terminal.str(),
              "\rSurvey [" + std::string(15, '#') + std::string(15, ' ') + "]  50%");
}

TEST(TerminalProgressBarTest, WorkOfUnknownSizeShowsOnlyTheText) {
    std::ostringstream terminal;
    TerminalProgressBar bar(terminal);
    bar.Begin("Survey");
    EXPECT_EQ(terminal.str(), "\rSurvey ...");
}

TEST(TerminalProgressBarTest, TheEndWipesTheLineItDrew) {
    std::ostringstream terminal;
    TerminalProgressBar bar(terminal);
    bar.Begin("Survey");  // "Survey ..." is 10 characters
    terminal.str("");
    bar.End();
    EXPECT_EQ(terminal.str(), "\r" + std::string(10, ' ') + "\r");
    EXPECT_FALSE(bar.IsCancelled());
}

TEST(TerminalProgressBarTest, AShorterTitleCoversTheLongerOneBeforeIt) {
    std::ostringstream terminal;
    TerminalProgressBar bar(terminal);
    bar.Begin("Long title");  // 14 characters with " ..."
    terminal.str("");
    bar.Retitle("Short");  // "Short ..." is 9, so 5 blanks cover the rest
    EXPECT_EQ(terminal.str(), "\rShort ..." + std::string(5, ' '));
}

}  // namespace
}  // namespace zelmora
