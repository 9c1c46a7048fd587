#include "ostui/layout/LayoutParser.hpp"

#include "ostui/ResourceError.hpp"

#include <gtest/gtest.h>

#include <string>

namespace {

using ostui::LayoutDescription;
using ostui::LayoutViewKind;
using ostui::ParseLayout;
using ostui::ResourceError;

const std::string kBundleResources = std::string(ZELMORA_TEST_BUNDLE) + "/Resources/";

TEST(LayoutParserTest, TheTolvaneLayoutHoldsASubviewWithTheListAndTheGripperGap) {
    LayoutDescription layout = ostui::ReadLayoutFile(kBundleResources + "TolvanePanel16002.eve");
    EXPECT_EQ(layout.name, "TolvanePanel");
    ASSERT_EQ(layout.views.size(), 1u);
    const ostui::LayoutNode& sub = layout.views[0];
    EXPECT_EQ(sub.kind, LayoutViewKind::SubView);
    EXPECT_EQ(sub.id, "TolvaneSubView");
    EXPECT_EQ(sub.theme, "panel");
    EXPECT_FALSE(sub.border);
    EXPECT_FALSE(sub.takesFocus);
    ASSERT_EQ(sub.children.size(), 2u);
    const ostui::LayoutNode& list = sub.children[0];
    EXPECT_EQ(list.kind, LayoutViewKind::List);
    EXPECT_EQ(list.id, "TolvaneList");
    EXPECT_FALSE(list.takesFocus);
    EXPECT_FALSE(list.border);
    EXPECT_EQ(list.fontSize, ostui::ThemeFontSize::Small);
    EXPECT_EQ(list.hints.orientation, ostui::Orientation::Vertical);
    EXPECT_TRUE(list.hints.fillHorizontal);
    EXPECT_TRUE(list.hints.fillVertical);
    EXPECT_EQ(sub.children[1].kind, LayoutViewKind::GripperGap);
}

TEST(LayoutParserTest, OmittedAttributesTakeTheirDefaults) {
    LayoutDescription layout = ParseLayout(R"(<layout name="L"><list id="a"/></layout>)", "test");
    const ostui::LayoutNode& list = layout.views.at(0);
    EXPECT_TRUE(list.takesFocus);
    EXPECT_FALSE(list.border);
    EXPECT_FALSE(list.hints.fillHorizontal);
    EXPECT_EQ(list.fontSize, ostui::ThemeFontSize::Regular);
}

// Each of these is one mistake in an otherwise good layout.
class MalformedLayoutTest : public ::testing::TestWithParam<const char*> {};

TEST_P(MalformedLayoutTest, IsRejectedWithAResourceError) {
    EXPECT_THROW(ParseLayout(GetParam(), "test.eve"), ResourceError);
}

INSTANTIATE_TEST_SUITE_P(
    Mistakes, MalformedLayoutTest,
    ::testing::Values(
        R"(<layout name="L"><list id="a"></layout>)",                  // not well-formed XML
        R"(<panel name="L"/>)",                                          // another root
        R"(<layout/>)",                                                  // no name
        R"(<layout name="L"><button id="a"/></layout>)",                 // unknown kind
        R"(<layout name="L"><list id="a" fill="sideways"/></layout>)",   // bad fill
        R"(<layout name="L"><list id="a" focus="no"/></layout>)",        // not true/false
        R"(<layout name="L"><list id="a" font-size="tiny"/></layout>)",  // bad size
        R"(<layout name="L"><list id="a" colour="red"/></layout>)",      // unknown attribute
        R"(<layout name="L"><list id="a" width="-4"/></layout>)",        // negative width
        R"(<layout name="L"><list id="a" height="ten"/></layout>)",      // not a number
        R"(<layout name="L"><list id="a" theme="panel"/></layout>)",     // theme is a subview's
        R"(<layout name="L"><list id="a"/><list id="a"/></layout>)",     // id used twice
        R"(<layout name="L"><list id="a"><list id="b"/></list></layout>)",  // a list holds no views
        R"(<layout name="L"><gripper-gap height="3"/></layout>)"));      // the gap is fixed

TEST(LayoutParserTest, TheMessageNamesTheResource) {
    try {
        ParseLayout("<layout name='L'><button/></layout>", "Panel16002.eve");
        FAIL() << "no error";
    } catch (const ResourceError& error) {
        EXPECT_NE(std::string(error.what()).find("Panel16002.eve"), std::string::npos);
    }
}

}  // namespace
