#include "SvgFixtures.hpp"

#include <gtest/gtest.h>

#include <array>
#include <string>

namespace zm::test {
namespace {

using host::document::Art;
using host::document::ColorKind;
using host::document::Document;
using host::document::Point;
using host::document::Rect;
using host::document::TextFrameKind;

class SvgTextTest : public ::testing::Test {
protected:
    std::unique_ptr<Document> document = OpenSvgFixture("text.svg");
};

TEST_F(SvgTextTest, PointTextRunsCarryFontAndPaint) {
    const Art& text = ArtById(*document, "point");
    EXPECT_EQ(TypeCode(text), 12);
    ASSERT_TRUE(text.text);
    EXPECT_EQ(text.text->kind, TextFrameKind::Point);
    EXPECT_FALSE(text.text->framePath);
    ASSERT_EQ(text.text->runs.size(), 2u);
    const auto& hello = text.text->runs[0];
    EXPECT_EQ(hello.text, "Hello ");
    EXPECT_EQ(hello.fontFamily, "Noto Serif");  // first family, quotes gone
    EXPECT_EQ(hello.weight, 400);
    EXPECT_EQ(hello.fontStyle, "normal");
    EXPECT_EQ(hello.fontSize, 15);  // 20 px
    EXPECT_EQ(hello.paint.fill.kind, ColorKind::Rgb);
    const auto& world = text.text->runs[1];
    EXPECT_EQ(world.text, "World");
    EXPECT_EQ(world.fontFamily, "Noto Serif");
    EXPECT_EQ(world.weight, 700);
    EXPECT_EQ(world.fontStyle, "italic");
    EXPECT_EQ(world.paint.fill.kind, ColorKind::Cmyk);
}

TEST_F(SvgTextTest, TheBoundsEstimateHalfAnEmPerCharacter) {
    // 11 characters * 10 px = 110 px from x 10: 7.5..90 pt; one em (20 px) above the
    // baseline at 40 px: 20..40 px from the top of 75 pt, 60..45 pt.
    EXPECT_EQ(ArtById(*document, "point").bounds, (Rect{7.5, 60, 90, 45}));
}

TEST_F(SvgTextTest, TextOnAPathCopiesThePath) {
    const Art& text = ArtById(*document, "onPath");
    EXPECT_EQ(text.text->kind, TextFrameKind::OnPath);
    ASSERT_TRUE(text.text->framePath);
    EXPECT_EQ(TypeCode(*text.text->framePath), 2);
    EXPECT_EQ(text.text->framePath->Id(), "curve");
    EXPECT_EQ(text.text->framePath->path.segments.size(), 2u);  // moveto and one curve
    ASSERT_EQ(text.text->runs.size(), 1u);
    EXPECT_EQ(text.text->runs[0].text, "Along");
    EXPECT_EQ(text.text->runs[0].fontSize, 9);  // 12 px
}

TEST_F(SvgTextTest, ShapeInsideMakesAreaTextInThatShape) {
    const Art& text = ArtById(*document, "area");
    EXPECT_EQ(text.text->kind, TextFrameKind::Area);
    ASSERT_TRUE(text.text->framePath);
    EXPECT_EQ(text.text->framePath->Id(), "box");
    EXPECT_EQ(text.text->framePath->path.segments.size(), 4u);
    EXPECT_EQ(text.text->runs.at(0).fontFamily, "Arial");
    EXPECT_EQ(text.text->runs.at(0).fontSize, 9);  // 9 pt stays 9 pt
}

TEST_F(SvgTextTest, InlineSizeMakesAreaTextInARectangleThatWide) {
    // 100 px wide from x 10: 7.5..82.5 pt; one line (16 px) above the baseline at 90 px:
    // 74..90 px from the top, 19.5..7.5 pt.
    const Art& text = ArtById(*document, "wrapped");
    EXPECT_EQ(text.text->kind, TextFrameKind::Area);
    ASSERT_TRUE(text.text->framePath);
    const auto& segments = text.text->framePath->path.segments;
    ASSERT_EQ(segments.size(), 4u);
    EXPECT_EQ(segments[0].anchor, (Point{7.5, 19.5}));
    EXPECT_EQ(segments[2].anchor, (Point{82.5, 7.5}));
    EXPECT_EQ(text.text->runs.at(0).weight, 300);
}

TEST_F(SvgTextTest, FontsAreInheritedAndRelativeSizesResolved) {
    const auto& runs = ArtById(*document, "inherited").text->runs;
    ASSERT_EQ(runs.size(), 2u);
    EXPECT_EQ(runs[0].fontFamily, "Inherited Sans");
    EXPECT_EQ(runs[0].fontSize, 12);  // 16 px
    EXPECT_EQ(runs[1].fontSize, 24);  // 200 % of 16 px = 32 px
}

class SvgTextLayoutTest : public ::testing::Test {
protected:
    std::unique_ptr<Document> document = OpenSvgFixture("text-layout.svg");

    const host::document::TextRun& OnlyRun(const std::string& id) {
        const Art& text = ArtById(*document, id);
        EXPECT_TRUE(text.text && text.text->runs.size() == 1u);
        return text.text->runs.at(0);
    }
};

TEST_F(SvgTextLayoutTest, ATspansXAndYStartANewLine) {
    // "ab" from (10, 20): x 10..20, y 10..20 px; "cdef" from (10, 40): x 10..30, y 30..40.
    // Together x 10..30, y 10..40 px: 7.5..22.5 pt, 75 - 7.5 = 67.5 down to 75 - 30 = 45.
    ExpectBoundsNear(ArtById(*document, "lines").bounds, Rect{7.5, 67.5, 22.5, 45});
}

TEST_F(SvgTextLayoutTest, MiddleAnchorCentresTheTextOnX) {
    // Four characters of 10 px: 40 px wide, centred on 100: x 80..120, y 30..50 px.
    ExpectBoundsNear(ArtById(*document, "centred").bounds, Rect{60, 52.5, 90, 37.5});
}

TEST_F(SvgTextLayoutTest, EachChunkTakesTheAnchorOfItsFirstCharacter) {
    // "ab" ends at 200 (x 190..200); the tspan's chunk starts at 100 (x 100..110). Together
    // x 100..200, y 70..80 px: 75..150 pt, 22.5 down to 15.
    ExpectBoundsNear(ArtById(*document, "ended").bounds, Rect{75, 22.5, 150, 15});
}

TEST_F(SvgTextLayoutTest, DxMovesTheNextCharacterWithoutANewChunk) {
    // "a" 0..5, then 20 px on: "b" 25..30; y 90..100 px: 0..22.5 pt, 7.5 down to 0.
    ExpectBoundsNear(ArtById(*document, "shifted").bounds, Rect{0, 7.5, 22.5, 0});
}

TEST_F(SvgTextLayoutTest, AListPlacesCharactersOneByOne) {
    // "a" at 0..5, "b" at 50..55 px; y 0..10 px: 0..41.25 pt, 75 down to 67.5.
    ExpectBoundsNear(ArtById(*document, "perCharacter").bounds, Rect{0, 75, 41.25, 67.5});
}

TEST_F(SvgTextLayoutTest, ATrailingBlankDoesNotWidenAnEndAnchoredLine) {
    // "ab" without its blank is 10 px, ending at 100: x 90..100 px, 67.5..75 pt.
    ExpectBoundsNear(ArtById(*document, "trailing").bounds, Rect{67.5, 75, 75, 67.5});
}

TEST_F(SvgTextLayoutTest, TheFontShorthandSetsStyleWeightSizeAndFamily) {
    const auto& run = OnlyRun("shorthand");
    EXPECT_EQ(run.fontStyle, "italic");
    EXPECT_EQ(run.weight, 700);
    EXPECT_EQ(run.fontSize, 18);  // 24 px; the line height does not change it
    EXPECT_EQ(run.fontFamily, "Quux Sans");
}

TEST_F(SvgTextLayoutTest, ALonghandAfterTheShorthandWins) {
    const auto& run = OnlyRun("longhandAfter");
    EXPECT_EQ(run.fontSize, 9);  // 12 px, declared after the shorthand's 24 px
    EXPECT_EQ(run.fontFamily, "Foo");
}

TEST_F(SvgTextLayoutTest, TheShorthandResetsWhatItLeavesOut) {
    EXPECT_EQ(OnlyRun("shorthandResets").weight, 400);  // not the group's bold
}

TEST_F(SvgTextLayoutTest, AnUnreadableShorthandIsIgnored) {
    const auto& run = OnlyRun("badShorthand");
    EXPECT_EQ(run.fontSize, 7.5);  // the attribute's 10 px stands
    EXPECT_EQ(run.fontFamily, "");
}

}  // namespace
}  // namespace zm::test
