#include "host/suites/SuiteFixture.hpp"

#include <zelmora/ZMMenuSuite.h>

#include <gtest/gtest.h>

#include <string>

namespace zm::host {
namespace {

constexpr int32_t kOptions = static_cast<int32_t>(0x9E000000u);
constexpr const char* kUtf8Text = "Probenübersicht";  // "ü" is two bytes in UTF-8

class MenuSuiteTest : public zm::test::SuiteFixture {
protected:
    void SetUp() override { Acquire(ZM_MENU_SUITE_NAME, ZM_MENU_SUITE_VERSION, menus); }

    ZMMenuItemHandle AddItem(const char* text = "&Probe...") {
        ZMMenuItemHandle item = nullptr;
        EXPECT_EQ(menus->AddMenuItem(ref, ZM_MENU_GROUP_TOOL_PALETTES, text, kOptions, &item),
                  ZM_ERR_NONE);
        return item;
    }

    int32_t Checked(ZMMenuItemHandle item) {
        int32_t checked = -1;
        EXPECT_EQ(menus->IsItemChecked(item, &checked), ZM_ERR_NONE);
        return checked;
    }

    int32_t Enabled(ZMMenuItemHandle item) {
        int32_t enabled = -1;
        EXPECT_EQ(menus->IsItemEnabled(item, &enabled), ZM_ERR_NONE);
        return enabled;
    }

    const ZMMenuSuite* menus = nullptr;
};

TEST_F(MenuSuiteTest, AnItemAddedToToolPalettesJoinsThatGroupWithTheTextAndOptionsGiven) {
    ZMMenuItemHandle item = AddItem("&Probe...");
    ASSERT_NE(item, nullptr);
    const MenuItem* added = runtime.menus.Find(item);
    ASSERT_NE(added, nullptr);
    EXPECT_EQ(added->plugin, ref);
    EXPECT_EQ(added->group, ZM_MENU_GROUP_TOOL_PALETTES);
    EXPECT_EQ(added->text, "&Probe...");
    EXPECT_EQ(added->options, kOptions);
}

TEST_F(MenuSuiteTest, GetItemTextGivesTheTextTheItemWasAddedWith) {
    ZMMenuItemHandle item = AddItem(kUtf8Text);
    const char* text = nullptr;
    ASSERT_EQ(menus->GetItemText(item, &text), ZM_ERR_NONE);
    ASSERT_NE(text, nullptr);
    EXPECT_STREQ(text, kUtf8Text);
}

TEST_F(MenuSuiteTest, TheTextPointerStaysTheSameWhileTheItemLives) {
    ZMMenuItemHandle item = AddItem();
    const char* first = nullptr;
    const char* second = nullptr;
    ASSERT_EQ(menus->GetItemText(item, &first), ZM_ERR_NONE);
    AddItem("Another");  // more items must not move the first one's text
    ASSERT_EQ(menus->GetItemText(item, &second), ZM_ERR_NONE);
    EXPECT_EQ(first, second);
}

TEST_F(MenuSuiteTest, EveryItemAddedGetsAHandleOfItsOwn) {
    ZMMenuItemHandle first = AddItem("First");
    ZMMenuItemHandle second = AddItem("Second");
    EXPECT_NE(first, second);
    EXPECT_EQ(runtime.menus.Items().size(), 2u);
}

TEST_F(MenuSuiteTest, AGroupTheHostDoesNotHaveIsNotFound) {
    ZMMenuItemHandle item = nullptr;
    EXPECT_EQ(menus->AddMenuItem(ref, "No Such Group", "Probe", 0, &item), ZM_ERR_NOT_FOUND);
    EXPECT_TRUE(runtime.menus.Items().empty());
}

TEST_F(MenuSuiteTest, APluginRefTheHostNeverMadeIsABadArgument) {
    ZMMenuItemHandle item = nullptr;
    EXPECT_EQ(menus->AddMenuItem(zm::test::ForeignHandle<ZMPluginRef>(),
                                 ZM_MENU_GROUP_TOOL_PALETTES, "Probe", 0, &item),
              ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(menus->AddMenuItem(nullptr, ZM_MENU_GROUP_TOOL_PALETTES, "Probe", 0, &item),
              ZM_ERR_BAD_ARGUMENT);
    EXPECT_TRUE(runtime.menus.Items().empty());
}

TEST_F(MenuSuiteTest, AddingWithoutGroupTextOrOutPointerIsABadArgument) {
    ZMMenuItemHandle item = nullptr;
    EXPECT_EQ(menus->AddMenuItem(ref, nullptr, "Probe", 0, &item), ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(menus->AddMenuItem(ref, ZM_MENU_GROUP_TOOL_PALETTES, nullptr, 0, &item),
              ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(menus->AddMenuItem(ref, ZM_MENU_GROUP_TOOL_PALETTES, "Probe", 0, nullptr),
              ZM_ERR_BAD_ARGUMENT);
    EXPECT_TRUE(runtime.menus.Items().empty());
}

TEST_F(MenuSuiteTest, ANewItemIsUncheckedAndEnabled) {
    ZMMenuItemHandle item = AddItem();
    EXPECT_EQ(Checked(item), 0);
    EXPECT_EQ(Enabled(item), 1);
}

TEST_F(MenuSuiteTest, CheckingAndUncheckingAnItemIsReadBack) {
    ZMMenuItemHandle item = AddItem();
    ASSERT_EQ(menus->CheckItem(item, 1), ZM_ERR_NONE);
    EXPECT_EQ(Checked(item), 1);
    ASSERT_EQ(menus->CheckItem(item, 0), ZM_ERR_NONE);
    EXPECT_EQ(Checked(item), 0);
}

TEST_F(MenuSuiteTest, AnyNonZeroFlagChecksAndReadsBackAsOne) {
    ZMMenuItemHandle item = AddItem();
    ASSERT_EQ(menus->CheckItem(item, -7), ZM_ERR_NONE);
    EXPECT_EQ(Checked(item), 1);
}

TEST_F(MenuSuiteTest, DisablingAndEnablingAnItemIsReadBack) {
    ZMMenuItemHandle item = AddItem();
    ASSERT_EQ(menus->EnableItem(item, 0), ZM_ERR_NONE);
    EXPECT_EQ(Enabled(item), 0);
    ASSERT_EQ(menus->EnableItem(item, 1), ZM_ERR_NONE);
    EXPECT_EQ(Enabled(item), 1);
}

TEST_F(MenuSuiteTest, CheckingOneItemLeavesTheOthersAlone) {
    ZMMenuItemHandle first = AddItem("First");
    ZMMenuItemHandle second = AddItem("Second");
    ASSERT_EQ(menus->CheckItem(first, 1), ZM_ERR_NONE);
    ASSERT_EQ(menus->EnableItem(first, 0), ZM_ERR_NONE);
    EXPECT_EQ(Checked(second), 0);
    EXPECT_EQ(Enabled(second), 1);
}

TEST_F(MenuSuiteTest, EveryItemEntryRejectsAHandleTheHostNeverMade) {
    AddItem();  // so that the host has an item, just not this one
    auto foreign = zm::test::ForeignHandle<ZMMenuItemHandle>();
    int32_t flag = -1;
    const char* text = nullptr;
    EXPECT_EQ(menus->CheckItem(foreign, 1), ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(menus->IsItemChecked(foreign, &flag), ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(menus->EnableItem(foreign, 1), ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(menus->IsItemEnabled(foreign, &flag), ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(menus->GetItemText(foreign, &text), ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(flag, -1);
    EXPECT_EQ(text, nullptr);
}

TEST_F(MenuSuiteTest, EveryItemEntryRejectsANullHandle) {
    int32_t flag = -1;
    const char* text = nullptr;
    EXPECT_EQ(menus->CheckItem(nullptr, 1), ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(menus->IsItemChecked(nullptr, &flag), ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(menus->EnableItem(nullptr, 1), ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(menus->IsItemEnabled(nullptr, &flag), ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(menus->GetItemText(nullptr, &text), ZM_ERR_BAD_ARGUMENT);
}

TEST_F(MenuSuiteTest, NullOutPointersAreABadArgument) {
    ZMMenuItemHandle item = AddItem();
    EXPECT_EQ(menus->IsItemChecked(item, nullptr), ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(menus->IsItemEnabled(item, nullptr), ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(menus->GetItemText(item, nullptr), ZM_ERR_BAD_ARGUMENT);
}

}  // namespace
}  // namespace zm::host
