#include "SvgFixtures.hpp"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace zm::test {
namespace {

using host::document::Art;
using host::document::ColorKind;
using host::document::Corner;
using host::document::Document;
using host::document::LiveShapeKind;
using host::document::Rect;

class SvgStructureTest : public ::testing::Test {
protected:
    std::unique_ptr<Document> document = OpenSvgFixture("structure.svg");
};

TEST_F(SvgStructureTest, AClipPathMakesAClipGroupOfClipPathsThenTheArt) {
    const Art& clipped = ArtById(*document, "clipped");
    ASSERT_NE(clipped.Parent(), nullptr);
    const Art& group = *clipped.Parent();
    EXPECT_EQ(TypeCode(group), 1);
    EXPECT_TRUE(group.clipGroup);
    ASSERT_EQ(group.Children().size(), 3u);
    EXPECT_TRUE(group.Children()[0]->style.clip);
    EXPECT_TRUE(group.Children()[1]->style.clip);
    EXPECT_EQ(group.Children()[2].get(), &clipped);
    EXPECT_FALSE(clipped.style.clip);
}

TEST_F(SvgStructureTest, AClipPathThatClipsItselfIsUsedOnce) {
    const Art& group = *ArtById(*document, "selfClipped").Parent();
    EXPECT_TRUE(group.clipGroup);
    ASSERT_EQ(group.Children().size(), 2u);  // its rect, not wrapped again
    EXPECT_EQ(TypeCode(*group.Children()[0]), 2);
}

TEST_F(SvgStructureTest, AMaskBecomesTheOpacityMask) {
    const Art& masked = ArtById(*document, "masked");
    ASSERT_TRUE(masked.opacityMask);
    ASSERT_EQ(masked.opacityMask->Children().size(), 1u);
    EXPECT_EQ(masked.opacityMask->Children()[0]->style.fill.kind, ColorKind::Cmyk);
}

TEST_F(SvgStructureTest, UsesAreInstancesOfOneSymbolPerTarget) {
    const Art& first = ArtById(*document, "use1");
    const Art& second = ArtById(*document, "use2");
    EXPECT_EQ(TypeCode(first), 13);
    ASSERT_NE(first.symbol, nullptr);
    EXPECT_EQ(first.symbol, second.symbol);
    EXPECT_EQ(first.symbol->name, "star");
    ASSERT_EQ(first.symbol->definition->Children().size(), 1u);  // the symbol's path
    ASSERT_EQ(document->symbols.size(), 2u);                     // star and plain
    EXPECT_EQ(ArtById(*document, "use3").symbol->definition->Id(), "plain");
}

TEST_F(SvgStructureTest, AUseOfAMissingElementIsDropped) {
    EXPECT_EQ(host::document::FindArtById(*document, "broken"), nullptr);
}

TEST_F(SvgStructureTest, APluginGroupHoldsItsChildrenInItsResultGroup) {
    Art& blend = ArtById(*document, "blend");
    EXPECT_EQ(TypeCode(blend), 10);
    EXPECT_EQ(blend.pluginName, "Quorvel Path Blends");
    ASSERT_EQ(blend.Children().size(), 1u);
    const Art& result = blend.ResultGroup();
    ASSERT_EQ(result.Children().size(), 2u);
    EXPECT_EQ(result.Children()[0]->Id(), "b1");
}

TEST_F(SvgStructureTest, ChartsAndGraphs) {
    const Art& chart = ArtById(*document, "chart");
    EXPECT_EQ(TypeCode(chart), 16);
    EXPECT_TRUE(chart.Children().empty());
    const Art& graph = ArtById(*document, "graph");
    EXPECT_EQ(TypeCode(graph), 0);
    EXPECT_TRUE(graph.graph);
}

TEST_F(SvgStructureTest, ARectIsALiveRectangleWithFourCorners) {
    const Art& plain = ArtById(*document, "plain");
    ASSERT_TRUE(plain.liveShape);
    EXPECT_EQ(plain.liveShape->kind, LiveShapeKind::Rectangle);
    // rx 2 px = 1.5 pt on every corner, round and absolute.
    EXPECT_EQ(plain.liveShape->corners, (std::vector<Corner>(4, Corner{0, 0, 1.5})));
    EXPECT_EQ(plain.path.segments.size(), 8u);
}

TEST_F(SvgStructureTest, CornerAttributesPerCornerOrForAll) {
    const Art& corners = ArtById(*document, "corners");
    ASSERT_TRUE(corners.liveShape);
    // Radii 1 2 3 4 px in points; one type (chamfer, 2) for all; rounding per corner.
    EXPECT_EQ(corners.liveShape->corners,
              (std::vector<Corner>{{2, 0, 0.75}, {2, 1, 1.5}, {2, 0, 2.25}, {2, 1, 3}}));
}

TEST_F(SvgStructureTest, PolygonPathsAndEllipsesAreLiveShapes) {
    const Art& poly = ArtById(*document, "poly");
    ASSERT_TRUE(poly.liveShape);
    EXPECT_EQ(poly.liveShape->kind, LiveShapeKind::Polygon);
    EXPECT_EQ(poly.liveShape->corners, (std::vector<Corner>(3, Corner{0, 0, 2.25})));  // 3 px
    const Art& oval = ArtById(*document, "oval");
    ASSERT_TRUE(oval.liveShape);
    EXPECT_EQ(oval.liveShape->kind, LiveShapeKind::Ellipse);
    EXPECT_TRUE(oval.liveShape->corners.empty());
    const Art& circle = ArtById(*document, "b1");
    ASSERT_TRUE(circle.liveShape);  // circles too
    EXPECT_EQ(circle.liveShape->kind, LiveShapeKind::Ellipse);
}

TEST_F(SvgStructureTest, AForeignObjectNamesItsContentsFonts) {
    const Art& foreign = ArtById(*document, "fo");
    EXPECT_EQ(TypeCode(foreign), 14);
    ASSERT_TRUE(foreign.foreign);
    EXPECT_EQ(foreign.foreign->fonts, (std::vector<std::string>{"Quux Sans", "Bar"}));
    EXPECT_TRUE(foreign.foreign->transparent);  // the paragraph's opacity 0.5
    // x 10..50 px, y 20..50 px from the top of 75 pt: 7.5..37.5 and 60..37.5 pt.
    EXPECT_EQ(foreign.bounds, (Rect{7.5, 60, 37.5, 37.5}));
}

}  // namespace
}  // namespace zm::test
