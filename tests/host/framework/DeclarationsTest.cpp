#include <framework/Declarations.hpp>
#include <runtime/HostError.hpp>

#include <zelmora/ZMMenuSuite.h>
#include <zelmora/ZMNotifierSuite.h>
#include <zelmora/ZMPluginFramework.h>

#include <gtest/gtest.h>

#include <initializer_list>
#include <vector>

namespace zm::host {
namespace {

ZMDeclarationWord Word(const void* pointer) { return reinterpret_cast<ZMDeclarationWord>(pointer); }

const void* suiteTarget = nullptr;
const ZMSuiteDeclaration kSuites[] = {
    {ZM_SUITE_KIND_FRAMEWORK, ZM_MENU_SUITE_NAME, ZM_MENU_SUITE_VERSION, &suiteTarget},
    {ZM_SUITE_KIND_END, nullptr, 0, nullptr},
};

// Menu text 0x3E800001: string list 0x3E80 (16000), index 1.
constexpr ZMDeclarationWord kMenuText = 0x3E800001;
constexpr ZMDeclarationWord kMenuOptions = 0x9E000000;
constexpr ZMDeclarationWord kCommand = 10100;

std::vector<ZMDeclarationWord> SuiteRun() {
    return {ZM_DECL_SUITES, Word("Probe"), ZM_SUITE_LIST_FORMAT, ZM_SUITE_LIST_LEVEL,
            Word(kSuites)};
}

std::vector<ZMDeclarationWord> MenuRun() {
    return {
        ZM_DECL_MENU_ITEM, Word(ZM_MENU_GROUP_TOOL_PALETTES), kMenuText, 0, kMenuOptions, kCommand,
        ZM_DECL_TERMINATOR};
}

std::vector<ZMDeclarationWord> NotifierRun(const char* type) {
    return {ZM_DECL_NOTIFIER, Word("Probe"), Word(type), ZM_DECL_TERMINATOR};
}

// The runs in order, then the end word.
std::vector<ZMDeclarationWord> List(std::initializer_list<std::vector<ZMDeclarationWord>> runs) {
    std::vector<ZMDeclarationWord> words;
    for (const auto& run : runs) {
        words.insert(words.end(), run.begin(), run.end());
    }
    words.push_back(ZM_DECL_END);
    return words;
}

// The code ReadDeclarations threw, or ZM_ERR_NONE when it read the list.
ZMErr RejectionCode(const std::vector<ZMDeclarationWord>& words) {
    try {
        ReadDeclarations(words.data());
    } catch (const HostError& error) {
        return error.Code();
    }
    return ZM_ERR_NONE;
}

TEST(DeclarationsTest, AFullListReadsBackExactly) {
    auto words = List({SuiteRun(), MenuRun(), NotifierRun(ZM_NOTIFIER_DOCUMENT_OPENED),
                       NotifierRun(ZM_NOTIFIER_DOCUMENT_CLOSED)});
    Declarations read = ReadDeclarations(words.data());

    EXPECT_EQ(read.suites, kSuites);
    ASSERT_EQ(read.menuItems.size(), 1u);
    const MenuDeclaration& menu = read.menuItems[0];
    EXPECT_EQ(menu.group, ZM_MENU_GROUP_TOOL_PALETTES);
    EXPECT_EQ(menu.stringListId, 16000);
    EXPECT_EQ(menu.stringIndex, 1);
    EXPECT_EQ(menu.options, static_cast<int32_t>(0x9E000000u));
    EXPECT_EQ(menu.commandNumber, 10100);
    ASSERT_EQ(read.notifiers.size(), 2u);
    EXPECT_EQ(read.notifiers[0].owner, "Probe");
    EXPECT_EQ(read.notifiers[0].type, ZM_NOTIFIER_DOCUMENT_OPENED);
    EXPECT_EQ(read.notifiers[1].owner, "Probe");
    EXPECT_EQ(read.notifiers[1].type, ZM_NOTIFIER_DOCUMENT_CLOSED);
}

TEST(DeclarationsTest, TheOrderOfTheRunsDoesNotMatter) {
    auto words = List({NotifierRun(ZM_NOTIFIER_DOCUMENT_OPENED), MenuRun(), SuiteRun()});
    Declarations read = ReadDeclarations(words.data());
    EXPECT_EQ(read.suites, kSuites);
    EXPECT_EQ(read.menuItems.size(), 1u);
    EXPECT_EQ(read.notifiers.size(), 1u);
}

TEST(DeclarationsTest, ANullListDeclaresNothing) {
    Declarations read = ReadDeclarations(nullptr);
    EXPECT_EQ(read.suites, nullptr);
    EXPECT_TRUE(read.menuItems.empty());
    EXPECT_TRUE(read.notifiers.empty());
}

TEST(DeclarationsTest, AListOfOnlyTheEndWordDeclaresNothing) {
    auto words = List({});
    Declarations read = ReadDeclarations(words.data());
    EXPECT_EQ(read.suites, nullptr);
    EXPECT_TRUE(read.menuItems.empty());
    EXPECT_TRUE(read.notifiers.empty());
}

TEST(DeclarationsTest, AnUnknownKindIsABadDeclaration) {
    EXPECT_EQ(RejectionCode(List({{3, Word("Probe"), ZM_DECL_TERMINATOR}})),
              ZM_ERR_BAD_DECLARATION);
    EXPECT_EQ(RejectionCode(List({MenuRun(), {ZM_DECL_TERMINATOR}})), ZM_ERR_BAD_DECLARATION);
}

TEST(DeclarationsTest, AMenuItemWithoutItsTerminatorWordIsABadDeclaration) {
    auto menu = MenuRun();
    menu.pop_back();  // the list's end word now stands where the terminator belongs
    EXPECT_EQ(RejectionCode(List({menu})), ZM_ERR_BAD_DECLARATION);
}

TEST(DeclarationsTest, ANotifierWithoutItsTerminatorWordIsABadDeclaration) {
    auto notifier = NotifierRun(ZM_NOTIFIER_DOCUMENT_OPENED);
    notifier.pop_back();
    EXPECT_EQ(RejectionCode(List({notifier, MenuRun()})), ZM_ERR_BAD_DECLARATION);
}

TEST(DeclarationsTest, ASecondSuiteListIsABadDeclaration) {
    EXPECT_EQ(RejectionCode(List({SuiteRun(), SuiteRun()})), ZM_ERR_BAD_DECLARATION);
}

TEST(DeclarationsTest, ASuiteListOfAnotherFormatIsABadDeclaration) {
    auto suites = SuiteRun();
    suites[2] = ZM_SUITE_LIST_FORMAT + 1;
    EXPECT_EQ(RejectionCode(List({suites})), ZM_ERR_BAD_DECLARATION);
}

TEST(DeclarationsTest, ASuiteListOfAnotherLevelIsABadDeclaration) {
    auto suites = SuiteRun();
    suites[3] = ZM_SUITE_LIST_LEVEL - 1;
    EXPECT_EQ(RejectionCode(List({suites})), ZM_ERR_BAD_DECLARATION);
}

TEST(DeclarationsTest, ASuiteListWithoutATableIsABadDeclaration) {
    auto suites = SuiteRun();
    suites[4] = 0;
    EXPECT_EQ(RejectionCode(List({suites})), ZM_ERR_BAD_DECLARATION);
}

TEST(DeclarationsTest, ANullNameIsABadDeclaration) {
    auto suites = SuiteRun();
    suites[1] = 0;
    auto menu = MenuRun();
    menu[1] = 0;
    auto owner = NotifierRun(ZM_NOTIFIER_DOCUMENT_OPENED);
    owner[1] = 0;
    auto type = NotifierRun(ZM_NOTIFIER_DOCUMENT_OPENED);
    type[2] = 0;
    EXPECT_EQ(RejectionCode(List({suites})), ZM_ERR_BAD_DECLARATION);
    EXPECT_EQ(RejectionCode(List({menu})), ZM_ERR_BAD_DECLARATION);
    EXPECT_EQ(RejectionCode(List({owner})), ZM_ERR_BAD_DECLARATION);
    EXPECT_EQ(RejectionCode(List({type})), ZM_ERR_BAD_DECLARATION);
}

}  // namespace
}  // namespace zm::host
