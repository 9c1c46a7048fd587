#include <importers/svg/CssFontShorthand.hpp>

#include <gtest/gtest.h>

#include <map>
#include <string>

namespace zm::host::svg {
namespace {

// property -> value of an expansion; empty when the shorthand is refused.
std::map<std::string, std::string> Expand(std::string_view value) {
    std::map<std::string, std::string> longhands;
    if (auto expanded = ExpandFontShorthand(value, false)) {
        for (const auto& declaration : *expanded) {
            longhands[declaration.property] = declaration.value;
        }
    }
    return longhands;
}

TEST(CssFontShorthandTest, EveryPartGoesToItsLonghand) {
    auto longhands = Expand("italic small-caps 600 condensed 12pt/1.5 \"Noto Sans\", serif");
    EXPECT_EQ(longhands["font-style"], "italic");
    EXPECT_EQ(longhands["font-variant"], "small-caps");
    EXPECT_EQ(longhands["font-weight"], "600");
    EXPECT_EQ(longhands["font-size"], "12pt");
    EXPECT_EQ(longhands["line-height"], "1.5");
    EXPECT_EQ(longhands["font-family"], "\"Noto Sans\", serif");  // the whole list
}

TEST(CssFontShorthandTest, LeftOutPartsTakeTheirInitialValues) {
    auto longhands = Expand("x-large Arial");
    EXPECT_EQ(longhands["font-style"], "normal");
    EXPECT_EQ(longhands["font-weight"], "normal");
    EXPECT_EQ(longhands["font-size"], "x-large");
    EXPECT_EQ(longhands["line-height"], "normal");
    EXPECT_EQ(longhands["font-family"], "Arial");
}

TEST(CssFontShorthandTest, ALineHeightMayStandApartFromTheSlash) {
    auto longhands = Expand("bold 10px / 2 Foo");
    EXPECT_EQ(longhands["font-size"], "10px");
    EXPECT_EQ(longhands["line-height"], "2");
    EXPECT_EQ(longhands["font-family"], "Foo");
}

TEST(CssFontShorthandTest, InheritMakesEveryLonghandInherit) {
    auto longhands = Expand("inherit");
    ASSERT_EQ(longhands.size(), 6u);
    for (const auto& [property, value] : longhands) {
        EXPECT_EQ(value, "inherit") << property;
    }
}

TEST(CssFontShorthandTest, ImportanceReachesTheLonghands) {
    auto expanded = ExpandFontShorthand("12px Foo", true);
    ASSERT_TRUE(expanded);
    for (const auto& declaration : *expanded) {
        EXPECT_TRUE(declaration.important) << declaration.property;
    }
}

TEST(CssFontShorthandTest, ValuesWithoutSizeOrFamilyAreRefused) {
    EXPECT_FALSE(ExpandFontShorthand("caption", false));      // system fonts are not read
    EXPECT_FALSE(ExpandFontShorthand("bold Arial", false));   // no size
    EXPECT_FALSE(ExpandFontShorthand("12px", false));         // no family
    EXPECT_FALSE(ExpandFontShorthand("12px/ Arial", false));  // a slash without line height
    EXPECT_FALSE(ExpandFontShorthand("12 Arial", false));     // 12 is a weight, not a size
    EXPECT_FALSE(ExpandFontShorthand("", false));
    EXPECT_FALSE(ExpandFontShorthand("12px , Arial", false));
    EXPECT_FALSE(ExpandFontShorthand("italic italic italic italic italic 12px A", false));
}

}  // namespace
}  // namespace zm::host::svg
