#include <importers/svg/SvgShapes.hpp>

#include <gtest/gtest.h>

#include <vector>

namespace zm::host::svg {
namespace {

using document::Point;

std::vector<Point> Anchors(const Subpath& subpath) {
    std::vector<Point> anchors;
    for (const auto& segment : ToPathGeometry(subpath, Affine{}).segments) {
        anchors.push_back(segment.anchor);
    }
    return anchors;
}

TEST(SvgShapesTest, ARectangleHasFourCorners) {
    Subpath rect = RectOutline(10, 20, 30, 40, 0, 0);
    EXPECT_TRUE(rect.closed);
    EXPECT_EQ(Anchors(rect), (std::vector<Point>{{10, 20}, {40, 20}, {40, 60}, {10, 60}}));
}

TEST(SvgShapesTest, ARoundedRectangleHasEightAnchors) {
    // Each side's two ends, starting at the top side's left end (x + rx).
    auto anchors = Anchors(RectOutline(0, 0, 100, 50, 10, 5));
    ASSERT_EQ(anchors.size(), 8u);
    EXPECT_EQ(anchors[0], (Point{10, 0}));
    EXPECT_EQ(anchors[1], (Point{90, 0}));
    EXPECT_EQ(anchors[2], (Point{100, 5}));
}

TEST(SvgShapesTest, RadiiAreClampedToHalfTheSide) {
    // rx 20 on a 10 wide rect is 5: the top side's left end sits at x 5.
    auto anchors = Anchors(RectOutline(0, 0, 10, 10, 20, 20));
    ASSERT_EQ(anchors.size(), 8u);
    EXPECT_EQ(anchors[0], (Point{5, 0}));
}

TEST(SvgShapesTest, ACircleIsFourArcsWithTheUsualHandles) {
    auto geometry = ToPathGeometry(EllipseOutline(50, 50, 10, 10), Affine{});
    ASSERT_EQ(geometry.segments.size(), 4u);
    EXPECT_TRUE(geometry.closed);
    EXPECT_EQ(geometry.segments[0].anchor, (Point{60, 50}));
    EXPECT_EQ(geometry.segments[1].anchor, (Point{50, 60}));
    EXPECT_EQ(geometry.segments[2].anchor, (Point{40, 50}));
    EXPECT_EQ(geometry.segments[3].anchor, (Point{50, 40}));
    // The handle leaving (60,50) points down the tangent, kappa * r long.
    EXPECT_NEAR(geometry.segments[0].out.x, 60, 1e-12);
    EXPECT_NEAR(geometry.segments[0].out.y, 50 + 5.522847498, 1e-9);
    EXPECT_FALSE(geometry.segments[0].corner);  // smooth all round
}

TEST(SvgShapesTest, ARectangleOfNoSizeKeepsFourCorners) {
    EXPECT_EQ(Anchors(RectOutline(5, 5, 0, 0, 0, 0)).size(), 4u);
}

TEST(SvgShapesTest, APolygonKeepsARepeatedFirstPoint) {
    // One anchor per listed point, the closing repeat included.
    EXPECT_EQ(Anchors(PolyOutline({0, 0, 10, 0, 10, 10, 0, 0}, true).at(0)).size(), 4u);
}

TEST(SvgShapesTest, ALineHasTwoAnchorsAndIsOpen) {
    auto geometry = ToPathGeometry(LineOutline(0, 0, 3, 4), Affine{});
    EXPECT_EQ(geometry.segments.size(), 2u);
    EXPECT_FALSE(geometry.closed);
}

TEST(SvgShapesTest, PolylinesTakeCoordinatesInPairs) {
    auto closed = PolyOutline({0, 0, 10, 0, 10, 10}, true);
    ASSERT_EQ(closed.size(), 1u);
    EXPECT_TRUE(closed[0].closed);
    EXPECT_EQ(Anchors(closed[0]).size(), 3u);
    auto odd = PolyOutline({0, 0, 10, 0, 5}, false);  // the lone 5 is dropped
    ASSERT_EQ(odd.size(), 1u);
    EXPECT_EQ(Anchors(odd[0]).size(), 2u);
    EXPECT_TRUE(PolyOutline({7}, false).empty());
}

}  // namespace
}  // namespace zm::host::svg
