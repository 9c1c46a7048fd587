#include "SvgFixtures.hpp"

#include <document/ArtBounds.hpp>

#include <gtest/gtest.h>

#include <optional>
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

class SvgUsePlacementTest : public ::testing::Test {
protected:
    std::unique_ptr<Document> document = OpenSvgFixture("use-placement.svg");
};

TEST_F(SvgUsePlacementTest, ASymbolsViewBoxFillsTheSizeOfTheUse) {
    // viewBox 10 x 10 into 20 x 20 px: twice the size, then moved to (10, 20): x 10..30 px,
    // y 20..40 px, so 7.5..22.5 pt across and 75 - 15 = 60 down to 75 - 30 = 45.
    ExpectBoundsNear(ArtById(*document, "scaled").bounds, Rect{7.5, 60, 22.5, 45});
}

TEST_F(SvgUsePlacementTest, AUseWithoutASizeGivesTheSymbolTheWholeViewport) {
    // 100% of 100 px: the 10-unit box becomes 100 px, the whole 75 pt page.
    ExpectBoundsNear(ArtById(*document, "full").bounds, Rect{0, 75, 75, 0});
}

TEST_F(SvgUsePlacementTest, TheTransformComesBeforeXAndY) {
    // translate(50 0) then (5, 10): the triangle spans x 55..65 px and y 10..20 px, so
    // 41.25..48.75 pt across and 75 - 7.5 = 67.5 down to 75 - 15 = 60.
    ExpectBoundsNear(ArtById(*document, "moved").bounds, Rect{41.25, 67.5, 48.75, 60});
}

TEST_F(SvgUsePlacementTest, ARotatedInstanceHasTheBoundsOfItsTurnedOutline) {
    // rotate(90) takes (x, y) to (-y, x): corners (0,0), (0,10), (-10,0); x -10..0 px is
    // -7.5..0 pt, y 0..10 px is 75 down to 67.5 pt.
    ExpectBoundsNear(ArtById(*document, "turned").bounds, Rect{-7.5, 75, 0, 67.5});
}

TEST_F(SvgUsePlacementTest, ASymbolWithoutViewBoxIsOnlyMoved) {
    // The circle (0..10 px both ways) moved by (40, 40): x 30..37.5 pt, y 45 down to 37.5.
    ExpectBoundsNear(ArtById(*document, "offset").bounds, Rect{30, 45, 37.5, 37.5});
}

TEST_F(SvgUsePlacementTest, TheGroupsTransformAppliesAfterTheUsesOwnPlacement) {
    // x = 1 first, then scale(2): x 2..22 px, y 0..20 px, so 1.5..16.5 pt and 75 down to 60.
    ExpectBoundsNear(ArtById(*document, "inGroup").bounds, Rect{1.5, 75, 16.5, 60});
}

TEST_F(SvgUsePlacementTest, AUseOfAUseMovesTheInnerInstance) {
    // "scaled" (7.5..22.5 pt, 60..45 pt) 50 px lower: 37.5 pt down, so 22.5..7.5.
    ExpectBoundsNear(ArtById(*document, "again").bounds, Rect{7.5, 22.5, 22.5, 7.5});
}

class SvgBoundingBoxUnitsTest : public ::testing::Test {
protected:
    std::unique_ptr<Document> document = OpenSvgFixture("bounding-box-units.svg");
};

TEST_F(SvgBoundingBoxUnitsTest, ClipContentInBoundingBoxUnitsCoversTheClippedBox) {
    // The rect's box is x 20..60, y 40..60 px; the clip's left half is x 20..40 px, so
    // 15..30 pt across, and 75 - 30 = 45 down to 75 - 45 = 30.
    const Art& group = *ArtById(*document, "clipped").Parent();
    ASSERT_TRUE(group.clipGroup);
    ExpectBoundsNear(host::document::ArtBounds(*group.Children()[0]), Rect{15, 45, 30, 30});
}

TEST_F(SvgBoundingBoxUnitsTest, MaskContentInBoundingBoxUnitsCoversTheMaskedBox) {
    // The circle's box is x 30..70, y 30..70 px; the mask's top half is y 30..50 px: 22.5..52.5
    // pt across, 75 - 22.5 = 52.5 down to 75 - 37.5 = 37.5.
    const Art& masked = ArtById(*document, "masked");
    ASSERT_TRUE(masked.opacityMask);
    ExpectBoundsNear(host::document::ArtBounds(*masked.opacityMask), Rect{22.5, 52.5, 52.5, 37.5});
}

TEST(SvgBoundingBoxUnitsEdgeTest, SelfReferencesAndEmptyBoxesImportQuietly) {
    const char* text = R"svg(<svg xmlns="http://www.w3.org/2000/svg" width="10" height="10">
      <defs>
        <pattern id="self" patternContentUnits="objectBoundingBox">
          <rect id="selfTile" width="1" height="1" fill="url(#self)"/></pattern>
        <pattern id="a"><rect width="1" height="1" fill="url(#b)"/></pattern>
        <pattern id="b" href="#b"><rect width="1" height="1" fill="url(#a)"/></pattern>
        <clipPath id="c" clipPathUnits="objectBoundingBox"><rect width="1" height="1"/></clipPath>
        <mask id="m" maskContentUnits="objectBoundingBox"><rect width="1" height="1"/></mask>
        <symbol id="s" viewBox="0 0 10 10"><rect width="10" height="10"/></symbol>
      </defs>
      <rect id="selfFilled" width="5" height="5" fill="url(#self)"/>
      <rect width="5" height="5" fill="url(#a)"/>
      <g id="empty" clip-path="url(#c)" mask="url(#m)"/>
      <use id="flat" href="#s" width="0" height="5"/>
    </svg>)svg";
    auto document = host::ImportSvgText(text, "edge.svg");
    for (const auto& pattern : document->patterns) {
        ASSERT_TRUE(pattern->art) << pattern->id;
        EXPECT_EQ(pattern->art->Children().size(), 1u) << pattern->id;  // each made once
    }
    // A zero width shrinks the symbol to a point: scale 0, centred in the 5 px height, so
    // (0, 2.5) px, which is 7.5 - 1.875 = 5.625 pt up on the 7.5 pt page.
    ExpectBoundsNear(ArtById(*document, "flat").bounds, Rect{0, 5.625, 0, 5.625});
    EXPECT_TRUE(ArtById(*document, "empty").opacityMask);
}

TEST(SvgForeignObjectTest, AForeignObjectListsTheSwatchesItsContentPaintsWith) {
    auto document = OpenSvgFixture("foreign-swatches.svg");
    const Art& foreign = ArtById(*document, "fo");
    ASSERT_TRUE(foreign.foreign);
    // In the order met: the div's colour (blue), the paragraph's fill (red) and stroke (blue
    // again, kept once). A gradient and a missing target are no swatches; the foreignObject's
    // own green fill belongs to the object, not to its content.
    std::vector<std::string> names;
    for (const auto* swatch : foreign.foreign->customColors) {
        names.push_back(swatch->name);
    }
    EXPECT_EQ(names, (std::vector<std::string>{"Deep Blue", "Signal Red"}));
}

}  // namespace
}  // namespace zm::test
