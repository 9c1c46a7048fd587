#include "plugins/tolvane/PanelSession.hpp"
#include "support/FileBytes.hpp"
#include "support/ScratchFolder.hpp"

#include <runtime/DialogAnswers.hpp>

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <string>

namespace zm::test {
namespace {

namespace fs = std::filesystem;

constexpr int kSelectionOnly = 1;
constexpr int kDocument = 2;
constexpr int kObjects = 3;
constexpr int kSave = 13;

class SaveReportTest : public PanelSession {
protected:
    void Save() { Panel()->ChooseFlyoutItem(kSave); }

    const host::DialogRecord& LastDialog() {
        EXPECT_FALSE(Runtime().dialogs.shown.empty());
        return Runtime().dialogs.shown.back();
    }

    ScratchFolder scratch;
};

// Selection Only starts on; turned off, the whole document is saved.
TEST_F(SaveReportTest, AnUntitledDocumentProposesInfoTxtForTheDocument) {
    ShowWithDocument();
    Panel()->ChooseFlyoutItem(kSelectionOnly);
    Save();  // no answer: the user cancels
    ASSERT_EQ(Runtime().dialogs.shown.size(), 1u);
    EXPECT_EQ(LastDialog().kind, host::DialogKind::SaveFile);
    EXPECT_EQ(LastDialog().prompt, "Save Document Info As:");
    EXPECT_EQ(LastDialog().defaultName, "Info.txt");
}

// The file name without its extension, then " Info.txt" with its leading blank.
TEST_F(SaveReportTest, ADocumentWithAFileProposesItsNameFollowedByInfoTxt) {
    OpenDocument().filePath = scratch.Path() / "Poster.svg";
    ASSERT_EQ(RunMenuItem(), ZM_ERR_NONE);
    Save();
    EXPECT_EQ(LastDialog().defaultName, "Poster Info.txt");
}

// Selection Only starts on.
TEST_F(SaveReportTest, InSelectionModeThePromptSaysSelection) {
    ShowWithDocument();
    ASSERT_NE(Globals().selectionOnly, 0);
    Save();
    EXPECT_EQ(LastDialog().prompt, "Save Selection Info As:");
}

TEST_F(SaveReportTest, CancellingWritesNothingAndLeavesThePanelAsItWas) {
    ShowWithDocument();
    Panel()->ChooseFlyoutItem(kObjects);
    const std::string before = Shown();
    Save();
    EXPECT_EQ(Shown(), before);
    EXPECT_TRUE(Flyout().IsItemChecked(kObjects));
    EXPECT_EQ(Globals().saving, 0);
    EXPECT_TRUE(fs::is_empty(scratch.Path()));
}

// The report in the file: single bytes, "\r\n" line ends (asctime's own "\n" in the heading
// aside), no byte-order mark, no NUL at the end.
TEST_F(SaveReportTest, TheFileIsSingleByteTextWithCarriageReturnLineEnds) {
    ShowWithDocument();
    const fs::path target = scratch.Path() / "report.txt";
    Runtime().dialogs.saveAnswer = target;
    Save();
    const std::string bytes = ReadFileBytes(target);
    ASSERT_GT(bytes.size(), 100u);
    EXPECT_EQ(bytes.rfind("Document Info - ", 0), 0u);
    EXPECT_EQ(bytes.find('\0'), std::string::npos);
    // asctime's line end is the only "\n" without "\r" before it.
    const std::size_t stamp = bytes.find('\n');
    ASSERT_EQ(stamp, std::string("Document Info - ").size() + 24);
    for (std::size_t at = bytes.find('\n', stamp + 1); at != std::string::npos;
         at = bytes.find('\n', at + 1)) {
        ASSERT_EQ(bytes[at - 1], '\r') << "at byte " << at;
    }
    // The report's closing pair of line ends and the line end of its append.
    EXPECT_EQ(bytes.substr(bytes.size() - 6), "\r\n\r\n\r\n");
    EXPECT_EQ(Globals().saving, 0);
}

// The Document category does not survey; Save does, whatever the category: the document's
// one rectangle is in the file's Objects section (Selection Only, on at first, turned off).
TEST_F(SaveReportTest, SavingInTheDocumentCategoryStillSurveysTheArt) {
    ShowWithDocument();
    Panel()->ChooseFlyoutItem(kSelectionOnly);
    ASSERT_EQ(Globals().mode, kDocument);
    const std::string shown = Shown();
    const fs::path target = scratch.Path() / "report.txt";
    Runtime().dialogs.saveAnswer = target;
    Save();
    EXPECT_NE(ReadFileBytes(target).find("\r\nObjects:\r\nPaths: 1 (0 open, 1 closed, 4 points, "),
              std::string::npos);
    // The panel stays on its category and shows what it showed.
    EXPECT_TRUE(Flyout().IsItemChecked(kDocument));
    EXPECT_EQ(Shown(), shown);
}

// windows-1252 holds "é" (0xE9) but not "Ω", which becomes "?". The document's file path is
// the report's Name line.
TEST_F(SaveReportTest, CharactersOutsideTheSingleByteEncodingBecomeQuestionMarks) {
    OpenDocument().filePath = "/posters/\xCE\xA9-caf\xC3\xA9.svg";
    ASSERT_EQ(RunMenuItem(), ZM_ERR_NONE);
    const fs::path target = scratch.Path() / "report.txt";
    Runtime().dialogs.saveAnswer = target;
    Save();
    EXPECT_NE(ReadFileBytes(target).find("\r\nName: /posters/?-caf\xE9.svg\r\n"), std::string::npos);
    EXPECT_EQ(LastDialog().defaultName, "\xCE\xA9-caf\xC3\xA9 Info.txt");
}

TEST_F(SaveReportTest, AnUnwritableTargetGivesNoFileAndThePanelCarriesOn) {
    ShowWithDocument();
    const std::string shown = Shown();
    const fs::path target = scratch.Path() / "no such folder" / "report.txt";
    Runtime().dialogs.saveAnswer = target;
    Save();
    EXPECT_FALSE(fs::exists(target));
    EXPECT_TRUE(fs::is_empty(scratch.Path()));
    EXPECT_EQ(Shown(), shown);
    EXPECT_EQ(Globals().saving, 0);
    EXPECT_EQ(host.AlertTexts(), "");
}

// A report saved over an older file replaces it whole.
TEST_F(SaveReportTest, SavingOverAnOlderFileReplacesIt) {
    ShowWithDocument();
    const fs::path target = scratch.Path() / "report.txt";
    std::ofstream(target) << std::string(100000, 'x');
    Runtime().dialogs.saveAnswer = target;
    Save();
    const std::string bytes = ReadFileBytes(target);
    EXPECT_EQ(bytes.rfind("Document Info - ", 0), 0u);
    EXPECT_EQ(bytes.find('x' + std::string(10, 'x')), std::string::npos);
}

}  // namespace
}  // namespace zm::test
