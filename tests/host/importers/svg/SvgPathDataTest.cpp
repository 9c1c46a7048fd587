#include <importers/svg/SvgPathData.hpp>

#include <gtest/gtest.h>

#include <vector>

namespace zm::host::svg {
namespace {

using document::Point;

std::vector<Point> Ends(const Subpath& subpath) {
    std::vector<Point> ends;
    for (const auto& piece : subpath.pieces) {
        ends.push_back(piece.end);
    }
    return ends;
}

void ExpectNear(const Point& actual, const Point& expected) {
    EXPECT_NEAR(actual.x, expected.x, 1e-9);
    EXPECT_NEAR(actual.y, expected.y, 1e-9);
}

TEST(SvgPathDataTest, AbsoluteLinesAndClose) {
    auto subpaths = ParsePathData("M10 10 L20 10 L20 20 Z");
    ASSERT_EQ(subpaths.size(), 1u);
    EXPECT_TRUE(subpaths[0].closed);
    EXPECT_EQ(subpaths[0].start, (Point{10, 10}));
    EXPECT_EQ(Ends(subpaths[0]), (std::vector<Point>{{20, 10}, {20, 20}}));
}

TEST(SvgPathDataTest, RelativeCommandsAddToTheCurrentPoint) {
    // The same triangle as above, written relatively with implicit repeated linetos.
    auto subpaths = ParsePathData("m10 10 l10 0 0 10 z");
    ASSERT_EQ(subpaths.size(), 1u);
    EXPECT_EQ(Ends(subpaths[0]), (std::vector<Point>{{20, 10}, {20, 20}}));
}

TEST(SvgPathDataTest, CoordinatesAfterAMovetoAreLinetos) {
    auto subpaths = ParsePathData("M0 0 10 0 10 10");
    ASSERT_EQ(subpaths.size(), 1u);
    EXPECT_EQ(Ends(subpaths[0]), (std::vector<Point>{{10, 0}, {10, 10}}));
}

TEST(SvgPathDataTest, HorizontalAndVerticalLines) {
    auto subpaths = ParsePathData("M0 0 H10 V10 h-10 v-10");
    ASSERT_EQ(subpaths.size(), 1u);
    EXPECT_EQ(Ends(subpaths[0]), (std::vector<Point>{{10, 0}, {10, 10}, {0, 10}, {0, 0}}));
}

TEST(SvgPathDataTest, EachMovetoStartsASubpath) {
    EXPECT_EQ(ParsePathData("M0 0 L1 1 M5 5 L6 6").size(), 2u);
}

TEST(SvgPathDataTest, DrawingAfterACloseStartsAtTheClosedSubpathsStart) {
    auto subpaths = ParsePathData("M10 10 L20 10 Z l0 10");
    ASSERT_EQ(subpaths.size(), 2u);
    EXPECT_EQ(subpaths[1].start, (Point{10, 10}));
    EXPECT_EQ(Ends(subpaths[1]), (std::vector<Point>{{10, 20}}));
}

TEST(SvgPathDataTest, EverythingBeforeAnErrorIsKept) {
    // The second lineto lacks its y: the path ends after the first.
    auto subpaths = ParsePathData("M0 0 L10 0 L20");
    ASSERT_EQ(subpaths.size(), 1u);
    EXPECT_EQ(Ends(subpaths[0]), (std::vector<Point>{{10, 0}}));
    EXPECT_TRUE(ParsePathData("L10 10").empty());  // no moveto first
}

TEST(SvgPathDataTest, ALoneMovetoDrawsNothing) {
    EXPECT_TRUE(ParsePathData("M5 5").empty());
    EXPECT_EQ(ParsePathData("M5 5 M0 0 L1 1").size(), 1u);
}

TEST(SvgPathDataTest, QuadraticCurvesBecomeExactCubics) {
    // Controls 2/3 of the way from each end to (10,10).
    auto subpaths = ParsePathData("M0 0 Q10 10 20 0");
    ASSERT_EQ(subpaths.size(), 1u);
    const auto& piece = subpaths[0].pieces.at(0);
    ExpectNear(piece.control1, {20.0 / 3, 20.0 / 3});
    ExpectNear(piece.control2, {20 - 20.0 / 3, 20.0 / 3});
}

TEST(SvgPathDataTest, SmoothCubicReflectsThePreviousControl) {
    // (10,10) reflected about the current point (10,0) is (10,-10).
    auto subpaths = ParsePathData("M0 0 C0 10 10 10 10 0 S20 -10 20 0");
    ASSERT_EQ(subpaths.at(0).pieces.size(), 2u);
    EXPECT_EQ(subpaths[0].pieces[1].control1, (Point{10, -10}));
}

TEST(SvgPathDataTest, AHalfCircleArcIsTwoQuarterPieces) {
    // Centre (10,0), radius 10, sweeping in the positive angle direction from 180 degrees
    // to 360: through 270 degrees, the point (10,-10).
    auto subpaths = ParsePathData("M0 0 A10 10 0 0 1 20 0");
    ASSERT_EQ(subpaths.at(0).pieces.size(), 2u);
    ExpectNear(subpaths[0].pieces[0].end, {10, -10});
    EXPECT_EQ(subpaths[0].pieces[1].end, (Point{20, 0}));
}

TEST(SvgPathDataTest, ArcRadiiTooSmallAreScaledUp) {
    // Radius 1 cannot span 20 units; it grows to 10 and draws the same half circle.
    auto subpaths = ParsePathData("M0 0 A1 1 0 0 1 20 0");
    ASSERT_EQ(subpaths.at(0).pieces.size(), 2u);
    ExpectNear(subpaths[0].pieces[0].end, {10, -10});
}

TEST(SvgPathDataTest, ArcFlagsMayRunIntoTheNextNumber) {
    // "0120 0" reads as large-arc 0, sweep 1, then the end point 20 0.
    auto subpaths = ParsePathData("M0 0 a10 10 0 0120 0");
    ASSERT_EQ(subpaths.at(0).pieces.size(), 2u);
    EXPECT_EQ(subpaths[0].pieces[1].end, (Point{20, 0}));
}

TEST(SvgPathDataTest, AnArcWithAZeroRadiusIsAStraightLine) {
    auto subpaths = ParsePathData("M0 0 A0 10 0 0 1 20 0");
    ASSERT_EQ(subpaths.at(0).pieces.size(), 1u);
    EXPECT_EQ(subpaths[0].pieces[0].control1, (Point{0, 0}));  // straight: controls on its ends
    EXPECT_EQ(subpaths[0].pieces[0].control2, (Point{20, 0}));
}

TEST(SvgPathDataTest, AClosedSubpathEndingOnItsStartCountsThatPointOnce) {
    auto subpaths = ParsePathData("M0 0 L10 0 L10 10 L0 10 L0 0 Z");
    auto geometry = ToPathGeometry(subpaths.at(0), Affine{});
    EXPECT_EQ(geometry.segments.size(), 4u);
    EXPECT_TRUE(geometry.closed);
}

TEST(SvgPathDataTest, AnOpenSubpathKeepsARepeatedStart) {
    auto geometry = ToPathGeometry(ParsePathData("M0 0 L10 0 L0 0").at(0), Affine{});
    EXPECT_EQ(geometry.segments.size(), 3u);
    EXPECT_FALSE(geometry.closed);
}

TEST(SvgPathDataTest, StraightSegmentsAreCornersWithDirectionPointsOnTheirAnchors) {
    // Mapped as the importer maps pixels: x * 0.75, y flipped from a 100 pt high page.
    Affine toModel{0.75, 0, 0, -0.75, 0, 100};
    auto geometry = ToPathGeometry(ParsePathData("M10 10 L20 10").at(0), toModel);
    ASSERT_EQ(geometry.segments.size(), 2u);
    const auto& first = geometry.segments[0];
    EXPECT_EQ(first.anchor, (Point{7.5, 92.5}));  // 10 * 0.75; 100 - 7.5
    EXPECT_EQ(first.in, first.anchor);
    EXPECT_EQ(first.out, first.anchor);
    EXPECT_TRUE(first.corner);
    EXPECT_EQ(geometry.segments[1].anchor, (Point{15, 92.5}));
}

TEST(SvgPathDataTest, ASmoothJoinIsNoCorner) {
    // At (10,0) the incoming control (5,0) and the outgoing (15,0) lie on one line.
    auto geometry =
        ToPathGeometry(ParsePathData("M0 0 C0 0 5 0 10 0 C15 0 20 0 20 0").at(0), Affine{});
    ASSERT_EQ(geometry.segments.size(), 3u);
    EXPECT_FALSE(geometry.segments[1].corner);
}

}  // namespace
}  // namespace zm::host::svg
