#include "ostui/MenuParser.hpp"

#include "ostui/ResourceError.hpp"

#include <gtest/gtest.h>

#include <string>

namespace {

using ostui::MenuEntry;
using ostui::ParseMenu;
using ostui::ResourceError;

TEST(MenuParserTest, TheTolvaneMenuHoldsThirteenItemsAndTwoSeparators) {
    std::vector<MenuEntry> entries =
        ostui::ReadMenuFile(std::string(ZELMORA_TEST_BUNDLE) + "/Resources/TolvanePanel.mnu");
    ASSERT_EQ(entries.size(), 15u);
    EXPECT_EQ(entries[0].id, 1);
    // The entity in the file reads as a plain ampersand.
    EXPECT_EQ(entries[0].key, "$$$/Tolvane/Mnu/16002/0=Selection &Only");
    EXPECT_TRUE(entries[1].separator);
    const char* categories[] = {"&Document",          "&Objects",         "&Graphic Styles",
                                "&Brushes",           "&Spot Color Objects", "&Pattern Objects",
                                "&Gradient Objects",  "&Fonts",           "&Linked Images",
                                "&Embedded Images",   "&Font Details"};
    for (int id = 2; id <= 12; ++id) {
        const MenuEntry& entry = entries[static_cast<std::size_t>(id)];  // after item 1 and a separator
        EXPECT_EQ(entry.id, id);
        EXPECT_EQ(entry.key, "$$$/Tolvane/Mnu/16002//" + std::to_string(id) + "=" +
                                 categories[id - 2]);
        EXPECT_TRUE(entry.enabled);
        EXPECT_FALSE(entry.checked);
    }
    EXPECT_TRUE(entries[13].separator);
    // Item 13 keeps key number 14.
    EXPECT_EQ(entries[14].id, 13);
    EXPECT_EQ(entries[14].key, "$$$/Tolvane/Mnu/16002//14=&Save...");
}

TEST(MenuParserTest, InitialStatesComeFromTheAttributes) {
    std::vector<MenuEntry> entries = ParseMenu(
        R"(<menu><item id="4" text="x" enabled="false" checked="true"/></menu>)", "test");
    ASSERT_EQ(entries.size(), 1u);
    EXPECT_FALSE(entries[0].enabled);
    EXPECT_TRUE(entries[0].checked);
}

class MalformedMenuTest : public ::testing::TestWithParam<const char*> {};

TEST_P(MalformedMenuTest, IsRejectedWithAResourceError) {
    EXPECT_THROW(ParseMenu(GetParam(), "test.mnu"), ResourceError);
}

INSTANTIATE_TEST_SUITE_P(
    Mistakes, MalformedMenuTest,
    ::testing::Values(R"(<menu><item id="1" text="a"></menu>)",     // not well-formed XML
                      R"(<items/>)",                                 // another root
                      R"(<menu><item text="a"/></menu>)",            // no id
                      R"(<menu><item id="1"/></menu>)",              // no text
                      R"(<menu><item id="0" text="a"/></menu>)",     // ids are positive
                      R"(<menu><item id="x" text="a"/></menu>)",     // not a number
                      R"(<menu><item id="1" text="a"/><item id="1" text="b"/></menu>)",
                      R"(<menu><submenu/></menu>)",                  // unknown element
                      R"(<menu><item id="1" text="a" hidden="true"/></menu>)",
                      R"(<menu><item id="1" text="a" checked="yes"/></menu>)",
                      R"(<menu><separator id="3"/></menu>)"));

}  // namespace
