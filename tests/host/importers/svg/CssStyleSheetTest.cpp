#include <importers/svg/CssStyleSheet.hpp>

#include <gtest/gtest.h>

#include <array>
#include <string>
#include <string_view>

namespace zm::host::svg {
namespace {

constexpr std::array<std::string_view, 2> kAttributes{"fill", "stroke"};

class CssStyleSheetTest : public ::testing::Test {
protected:
    // The cascaded value of property for the element with that id.
    std::string Value(const char* sheetText, const char* markup, const char* id,
                      const char* property = "fill") {
        CssStyleSheet sheet;
        sheet.Append(sheetText);
        pugi::xml_document xml;
        EXPECT_TRUE(xml.load_string(markup));
        pugi::xml_node element = xml.find_node([&](pugi::xml_node node) {
            return std::string_view(node.attribute("id").value()) == id;
        });
        EXPECT_TRUE(element) << id;
        auto values = sheet.Cascade(element, kAttributes);
        auto found = values.find(property);
        return found == values.end() ? "(unset)" : found->second;
    }
};

TEST(CssDeclarationsTest, MalformedDeclarationsAreSkipped) {
    auto declarations =
        ParseCssDeclarations("fill: red; stroke : blue !important; ; bad; /* c */ opacity:0.5");
    ASSERT_EQ(declarations.size(), 3u);
    EXPECT_EQ(declarations[0].property, "fill");
    EXPECT_EQ(declarations[0].value, "red");
    EXPECT_EQ(declarations[1].property, "stroke");
    EXPECT_EQ(declarations[1].value, "blue");
    EXPECT_TRUE(declarations[1].important);
    EXPECT_EQ(declarations[2].property, "opacity");
}

TEST(CssDeclarationsTest, SemicolonsInsideQuotesOrParenthesesDoNotSplit) {
    auto declarations = ParseCssDeclarations("font-family: 'A;B', serif; fill: url(#a;b)");
    ASSERT_EQ(declarations.size(), 2u);
    EXPECT_EQ(declarations[0].value, "'A;B', serif");
    EXPECT_EQ(declarations[1].value, "url(#a;b)");
}

TEST(CssDeclarationsTest, CommentMarksInsideStringsAreText) {
    auto declarations = ParseCssDeclarations(R"(font-family: "/* A */ B"; /* "x" */ fill: red)");
    ASSERT_EQ(declarations.size(), 2u);
    EXPECT_EQ(declarations[0].value, R"("/* A */ B")");
    EXPECT_EQ(declarations[1].property, "fill");
}

TEST_F(CssStyleSheetTest, IdBeatsClassBeatsType) {
    const char* markup = R"(<svg><rect id="r" class="a"/></svg>)";
    EXPECT_EQ(Value("#r { fill: blue } .a { fill: red } rect { fill: green }", markup, "r"),
              "blue");
    EXPECT_EQ(Value(".a { fill: red } rect { fill: green }", markup, "r"), "red");
}

TEST_F(CssStyleSheetTest, AmongEqualSelectorsTheLaterWins) {
    EXPECT_EQ(
        Value(".a { fill: red } .a { fill: green }", R"(<svg><rect id="r" class="a"/></svg>)", "r"),
        "green");
}

TEST_F(CssStyleSheetTest, ImportantBeatsMoreSpecificRules) {
    EXPECT_EQ(Value("rect { fill: green !important } #r { fill: blue }",
                    R"(<svg><rect id="r"/></svg>)", "r"),
              "green");
}

TEST_F(CssStyleSheetTest, TheStyleAttributeBeatsRulesButNotTheirImportantDeclarations) {
    EXPECT_EQ(Value("#r { fill: blue }", R"(<svg><rect id="r" style="fill: red"/></svg>)", "r"),
              "red");
    EXPECT_EQ(Value("#r { fill: blue !important }",
                    R"(<svg><rect id="r" style="fill: red"/></svg>)", "r"),
              "blue");
    EXPECT_EQ(Value("#r { fill: blue !important }",
                    R"(<svg><rect id="r" style="fill: red !important"/></svg>)", "r"),
              "red");
}

TEST_F(CssStyleSheetTest, PresentationAttributesLoseToEveryRule) {
    // Even the universal selector, of no specificity at all, beats the attribute.
    EXPECT_EQ(Value("* { fill: blue }", R"(<svg><rect id="r" fill="red"/></svg>)", "r"), "blue");
    EXPECT_EQ(Value("", R"(<svg><rect id="r" fill="red"/></svg>)", "r"), "red");
}

TEST_F(CssStyleSheetTest, DescendantAndChildCombinators) {
    const char* markup = R"(<svg><g><rect id="in" class="a"/></g><rect id="out" class="a"/></svg>)";
    EXPECT_EQ(Value("g .a { fill: red }", markup, "in"), "red");
    EXPECT_EQ(Value("g .a { fill: red }", markup, "out"), "(unset)");
    EXPECT_EQ(Value("svg > .a { fill: red }", markup, "out"), "red");
    EXPECT_EQ(Value("svg > .a { fill: red }", markup, "in"), "(unset)");  // a grandchild
}

TEST_F(CssStyleSheetTest, CompoundSelectorsNeedEveryPart) {
    const char* markup = R"(<svg><rect id="both" class="a b"/><rect id="one" class="a"/></svg>)";
    EXPECT_EQ(Value("rect.a.b { fill: red }", markup, "both"), "red");
    EXPECT_EQ(Value("rect.a.b { fill: red }", markup, "one"), "(unset)");
}

TEST_F(CssStyleSheetTest, SelectorListsApplyToEachSelector) {
    const char* markup = R"(<svg><rect id="r"/><circle id="c"/></svg>)";
    EXPECT_EQ(Value("rect, circle { stroke: red }", markup, "c", "stroke"), "red");
}

TEST(CssStyleSheetRulesTest, RulesWithUnknownSelectorsAndAtRulesAreDropped) {
    CssStyleSheet sheet;
    sheet.Append(
        "/* sheet */ rect:hover { fill: red } @import 'x.css'; "
        "@media print { rect { fill: red } } <!-- circle { fill: blue } -->");
    ASSERT_EQ(sheet.Rules().size(), 1u);
    EXPECT_EQ(sheet.Rules()[0].selector.compounds[0].type, "circle");
}

TEST(CssStyleSheetRulesTest, ClassesAnySelectorNamesAreDefined) {
    CssStyleSheet sheet;
    sheet.Append("g .shadow { opacity: 0.5 } rect.Warm, #x { fill: red }");
    EXPECT_TRUE(sheet.DefinesClass("shadow"));
    EXPECT_TRUE(sheet.DefinesClass("Warm"));
    EXPECT_FALSE(sheet.DefinesClass("warm"));  // class names are case-sensitive
}

TEST(CssStyleSheetRulesTest, SpecificityOrdersIdsClassesTypes) {
    CssStyleSheet sheet;
    sheet.Append("#a {fill:red} .a.b.c.d {fill:red} g rect {fill:red}");
    ASSERT_EQ(sheet.Rules().size(), 3u);
    EXPECT_GT(sheet.Rules()[0].selector.Specificity(), sheet.Rules()[1].selector.Specificity());
    EXPECT_GT(sheet.Rules()[1].selector.Specificity(), sheet.Rules()[2].selector.Specificity());
}

TEST_F(CssStyleSheetTest, AttributePresenceAndEquality) {
    const char* markup =
        R"(<svg><rect id="a" data-kind="tile"/><rect id="b" data-kind="tiles"/><rect id="c"/></svg>)";
    const char* sheet = "[data-kind] { fill: red } rect[data-kind=\"tile\"] { fill: blue }";
    EXPECT_EQ(Value(sheet, markup, "a"), "blue");  // both hold; the typed one is more specific
    EXPECT_EQ(Value(sheet, markup, "b"), "red");   // "tiles" is not "tile"
    EXPECT_EQ(Value(sheet, markup, "c"), "(unset)");
}

TEST_F(CssStyleSheetTest, AttributeWordPrefixSuffixAndSubstring) {
    const char* markup = R"(<svg><rect id="r" data-tags="big round" lang="en-GB" href="#pic.png"/></svg>)";
    EXPECT_EQ(Value("[data-tags~=round] { fill: red }", markup, "r"), "red");
    EXPECT_EQ(Value("[data-tags~=roun] { fill: red }", markup, "r"), "(unset)");  // no such word
    EXPECT_EQ(Value("[data-tags~='big round'] { fill: red }", markup, "r"), "(unset)");
    EXPECT_EQ(Value("[lang|=en] { fill: red }", markup, "r"), "red");  // "en" then "-"
    EXPECT_EQ(Value("[lang|=e] { fill: red }", markup, "r"), "(unset)");
    EXPECT_EQ(Value("[href^='#pic'] { fill: red }", markup, "r"), "red");
    EXPECT_EQ(Value("[href$=\".png\"] { fill: red }", markup, "r"), "red");
    EXPECT_EQ(Value("[href*=c.p] { fill: red }", markup, "r"), "(unset)");  // c.p: not an ident
    EXPECT_EQ(Value("[href*='c.p'] { fill: red }", markup, "r"), "red");
    EXPECT_EQ(Value("[href^=''] { fill: red }", markup, "r"), "(unset)");  // empty: never
    EXPECT_EQ(Value("[lang='EN-gb' i] { fill: red }", markup, "r"), "red");
    EXPECT_EQ(Value("[lang='EN-gb'] { fill: red }", markup, "r"), "(unset)");
}

TEST_F(CssStyleSheetTest, FirstChildCountsOnlyElements) {
    const char* markup = R"(<svg><g>text<rect id="first"/><rect id="second"/></g></svg>)";
    const char* sheet = "rect:first-child { fill: red }";
    EXPECT_EQ(Value(sheet, markup, "first"), "red");
    EXPECT_EQ(Value(sheet, markup, "second"), "(unset)");
}

TEST_F(CssStyleSheetTest, NotExcludesWhatItsSelectorMatches) {
    const char* markup = R"(<svg><rect id="plain"/><rect id="marked" class="skip"/><circle id="c"/></svg>)";
    EXPECT_EQ(Value("rect:not(.skip) { fill: red }", markup, "plain"), "red");
    EXPECT_EQ(Value("rect:not(.skip) { fill: red }", markup, "marked"), "(unset)");
    EXPECT_EQ(Value(":not(rect) { fill: red }", markup, "c"), "red");
    EXPECT_EQ(Value(":not(rect) { fill: red }", markup, "plain"), "(unset)");
}

TEST(CssStyleSheetRulesTest, SelectorsBeyondTheReadOnesDropTheirRules) {
    CssStyleSheet sheet;
    sheet.Append(
        "rect:last-child { fill: red } rect::before { fill: red } rect:not(.a.b) { fill: red } "
        ":not(:not(rect)) { fill: red } rect:not(g rect) { fill: red } [a=] { fill: red } "
        "[a b] { fill: red } a + b { fill: red } [a$=x]:first-child:not([b]) { fill: blue }");
    ASSERT_EQ(sheet.Rules().size(), 1u);
    const CssCompoundSelector& compound = sheet.Rules()[0].selector.compounds[0];
    ASSERT_EQ(compound.attributes.size(), 1u);
    EXPECT_EQ(compound.attributes[0].match, '$');
    EXPECT_TRUE(compound.firstChild);
    ASSERT_EQ(compound.negations.size(), 1u);
    EXPECT_EQ(compound.negations[0].attributes[0].name, "b");
}

TEST(CssStyleSheetRulesTest, AnUnclosedBracketOrStringEndsTheSheet) {
    // What follows an open bracket, parenthesis or quote is inside it to the end of the text,
    // so no block follows the prelude.
    for (const char* text : {"[a { fill: red } b { }", ":not(a { fill: red } b { }",
                             "[a='x] { fill: red } b { }"}) {
        CssStyleSheet sheet;
        sheet.Append(text);
        EXPECT_TRUE(sheet.Rules().empty()) << text;
    }
}

TEST(CssStyleSheetRulesTest, AttributesAndPseudoClassesWeighAsClasses) {
    CssStyleSheet sheet;
    sheet.Append(".a { } [b] { } :first-child { } :not(.c) { } :not(d) { } e { }");
    ASSERT_EQ(sheet.Rules().size(), 6u);
    uint32_t oneClass = sheet.Rules()[0].selector.Specificity();
    for (std::size_t i = 1; i < 4; ++i) {
        EXPECT_EQ(sheet.Rules()[i].selector.Specificity(), oneClass) << i;
    }
    // :not(d) weighs as its type d.
    EXPECT_EQ(sheet.Rules()[4].selector.Specificity(), sheet.Rules()[5].selector.Specificity());
    EXPECT_FALSE(sheet.DefinesClass("c"));  // a class only excluded defines no style
}

}  // namespace
}  // namespace zm::host::svg
