#include <gtest/gtest.h>
#include <zelmora/ZMLiveShapesSuite.h>
#include <zelmora/ZMPathSuite.h>

#include <cmath>
#include <string>
#include <vector>

#include "ImportedDocumentFixture.hpp"

namespace zm::test {
namespace {

// Fine enough that a circle's flattened length is within 0.1 % of its circumference: a chord
// whose sagitta is f on a radius r falls short of its arc by about f / (3 r) of its length.
constexpr double kFlatness = 0.01;

// Paths read through the path suite, and live shapes through the live shapes and corners
// suites.
class SvgGeometryThroughSuitesTest : public ImportedDocumentFixture {
protected:
    void SetUp() override {
        ImportedDocumentFixture::SetUp();
        Acquire(ZM_PATH_SUITE_NAME, ZM_PATH_SUITE_VERSION, paths);
        Acquire(ZM_LIVE_SHAPES_SUITE_NAME, ZM_LIVE_SHAPES_SUITE_VERSION, shapes);
        Acquire(ZM_LIVE_CORNERS_SUITE_NAME, ZM_LIVE_CORNERS_SUITE_VERSION, corners);
    }

    int16_t SegmentCount(ZMArtHandle path) {
        int16_t count = -1;
        EXPECT_EQ(paths->GetPathSegmentCount(path, &count), ZM_ERR_NONE);
        return count;
    }

    bool Closed(ZMArtHandle path) {
        ZMBool closed = -1;
        EXPECT_EQ(paths->GetPathClosed(path, &closed), ZM_ERR_NONE);
        return closed == 1;
    }

    double Length(ZMArtHandle path) {
        double length = -1;
        EXPECT_EQ(paths->GetPathLength(path, &length, kFlatness), ZM_ERR_NONE);
        return length;
    }

    std::vector<ZMPathSegment> Segments(ZMArtHandle path) {
        int16_t count = SegmentCount(path);
        std::vector<ZMPathSegment> segments(static_cast<size_t>(std::max<int16_t>(count, 0)));
        EXPECT_EQ(paths->GetPathSegments(path, 0, count, segments.data()), ZM_ERR_NONE);
        return segments;
    }

    // One corner as (type, rounding type, radius in points).
    struct CornerRead {
        int32_t type;
        int32_t rounding;
        double radius;
        bool operator==(const CornerRead&) const = default;
    };

    // The corners loaded from the path's own segments; the corners object is disposed of.
    std::vector<CornerRead> CornersOf(ZMArtHandle path, int32_t flags) {
        std::vector<ZMPathSegment> segments = Segments(path);
        ZMLiveCornersHandle handle = nullptr;
        EXPECT_EQ(corners->NewCorners(&handle), ZM_ERR_NONE);
        EXPECT_EQ(corners->LoadFromSegments(handle, segments.data(),
                                            static_cast<int32_t>(segments.size()), flags),
                  ZM_ERR_NONE);
        int32_t count = 0;
        EXPECT_EQ(corners->CountCorners(handle, &count), ZM_ERR_NONE);
        std::vector<CornerRead> read;
        for (int32_t i = 0; i < count; ++i) {
            CornerRead corner{-1, -1, -1};
            EXPECT_EQ(corners->GetCornerType(handle, i, &corner.type), ZM_ERR_NONE);
            EXPECT_EQ(corners->GetCornerRoundingType(handle, i, &corner.rounding), ZM_ERR_NONE);
            EXPECT_EQ(corners->GetCornerRadius(handle, i, &corner.radius), ZM_ERR_NONE);
            read.push_back(corner);
        }
        EXPECT_EQ(corners->DisposeCorners(handle), ZM_ERR_NONE);
        return read;
    }

    bool IsLive(ZMArtHandle handle) {
        ZMBool live = -1;
        EXPECT_EQ(shapes->IsLiveShape(handle, &live), ZM_ERR_NONE);
        return live == 1;
    }

    ZMLiveShapeKind Kind(ZMArtHandle handle) {
        ZMLiveShapeKind kind = -1;
        EXPECT_EQ(shapes->GetLiveShapeKind(handle, &kind), ZM_ERR_NONE);
        return kind;
    }

    const ZMPathSuite* paths = nullptr;
    const ZMLiveShapesSuite* shapes = nullptr;
    const ZMLiveCornersSuite* corners = nullptr;
};

// shapes.svg: 200 x 100 px without a viewBox, so one user unit is 0.75 pt.
class SvgShapesThroughSuitesTest : public SvgGeometryThroughSuitesTest {
protected:
    void SetUp() override {
        SvgGeometryThroughSuitesTest::SetUp();
        Import("shapes.svg");
    }
};

TEST_F(SvgShapesThroughSuitesTest, AnchorCountsAndClosedFlagsPerShape) {
    struct Row {
        const char* name;
        int16_t segments;
        bool closed;
    };
    for (const Row& row : {
             Row{"rect", 4, true},       // a rect's corners
             Row{"rounded", 8, true},    // both ends of each corner's arc
             Row{"circle", 4, true},     // four quarter arcs
             Row{"ellipse", 4, true},    // the same
             Row{"line", 2, false},      // its two ends
             Row{"polyline", 4, false},  // one per point
             Row{"polygon", 3, true},    // one per point, closed
             Row{"triangle", 3, true},   // three on-curve points, Z closes back to the first
             Row{"open", 2, false},      // one cubic: its two ends
         }) {
        ZMArtHandle path = ArtNamed(row.name);
        EXPECT_EQ(SegmentCount(path), row.segments) << row.name;
        EXPECT_EQ(Closed(path), row.closed) << row.name;
    }
}

TEST_F(SvgShapesThroughSuitesTest, ARectsAnchorsRunFromItsTopLeftCornerClockwise) {
    // x 10..50 px is 7.5..37.5 pt; y 10..30 px down from the top of 75 pt is 67.5..52.5.
    std::vector<ZMPathSegment> segments = Segments(ArtNamed("rect"));
    ASSERT_EQ(segments.size(), 4u);
    const double expected[4][2] = {{7.5, 67.5}, {37.5, 67.5}, {37.5, 52.5}, {7.5, 52.5}};
    for (size_t i = 0; i < 4; ++i) {
        EXPECT_DOUBLE_EQ(segments[i].anchor.x, expected[i][0]) << i;
        EXPECT_DOUBLE_EQ(segments[i].anchor.y, expected[i][1]) << i;
        EXPECT_EQ(segments[i].corner, 1) << i;  // straight sides meet at corners
    }
}

TEST_F(SvgShapesThroughSuitesTest, StraightShapesMeasureExactly) {
    // 40 x 20 px is 30 x 15 pt: 2 * (30 + 15).
    EXPECT_NEAR(Length(ArtNamed("rect")), 90, 1e-9);
    // 40 px.
    EXPECT_NEAR(Length(ArtNamed("line")), 30, 1e-9);
    // Three diagonals of 10 px by 10 px, not closed: 3 * 10 sqrt(2) px.
    EXPECT_NEAR(Length(ArtNamed("polyline")), 3 * 10 * std::sqrt(2.0) * 0.75, 1e-9);
    // 10 + 10 px and the closing diagonal of 10 sqrt(2) px.
    EXPECT_NEAR(Length(ArtNamed("polygon")), (20 + 10 * std::sqrt(2.0)) * 0.75, 1e-9);
    // A base of 40 px and two sides of sqrt(20^2 + 40^2) = 20 sqrt(5) px.
    EXPECT_NEAR(Length(ArtNamed("triangle")), (40 + 40 * std::sqrt(5.0)) * 0.75, 1e-9);
}

TEST_F(SvgShapesThroughSuitesTest, CurvedShapesMeasureWithinTheFlatness) {
    // r = 20 px = 15 pt.
    double circumference = 2 * M_PI * 15;
    EXPECT_NEAR(Length(ArtNamed("circle")), circumference, circumference * 1e-3);
    // 30 x 15 pt with corners of 3 pt: straight sides 2 * (24 + 9), four quarter circles.
    double rounded = 2 * (24 + 9) + 2 * M_PI * 3;
    EXPECT_NEAR(Length(ArtNamed("rounded")), rounded, rounded * 1e-3);
    // Semi-axes 22.5 and 7.5 pt; Ramanujan's perimeter is within 1e-5 of the truth here.
    double a = 22.5, b = 7.5;
    double ellipse = M_PI * (3 * (a + b) - std::sqrt((3 * a + b) * (a + 3 * b)));
    EXPECT_NEAR(Length(ArtNamed("ellipse")), ellipse, ellipse * 2e-3);
}

TEST_F(SvgShapesThroughSuitesTest, ACompoundPathIsMeasuredThroughItsMembers) {
    ZMArtHandle ring = ArtNamed("ring");
    int16_t count = 0;
    EXPECT_EQ(paths->GetPathSegmentCount(ring, &count), ZM_ERR_WRONG_ART_TYPE);
    // Each subpath is a closed square: 40 px (30 pt) outside, 20 px (15 pt) inside.
    ZMArtHandle outer = FirstChild(ring);
    ZMArtHandle inner = Sibling(outer);
    EXPECT_EQ(SegmentCount(outer), 4);
    EXPECT_TRUE(Closed(outer));
    EXPECT_NEAR(Length(outer), 120, 1e-9);
    EXPECT_EQ(SegmentCount(inner), 4);
    EXPECT_NEAR(Length(inner), 60, 1e-9);
}

TEST_F(SvgShapesThroughSuitesTest, RectsAndEllipsesAreLiveShapesPlainPathsAreNot) {
    EXPECT_TRUE(IsLive(ArtNamed("rect")));
    EXPECT_EQ(Kind(ArtNamed("rect")), ZM_LIVE_SHAPE_RECTANGLE);
    EXPECT_EQ(Kind(ArtNamed("circle")), ZM_LIVE_SHAPE_ELLIPSE);
    EXPECT_EQ(Kind(ArtNamed("ellipse")), ZM_LIVE_SHAPE_ELLIPSE);
    ZMArtHandle triangle = ArtNamed("triangle");
    EXPECT_FALSE(IsLive(triangle));
    ZMLiveShapeKind kind = -1;
    EXPECT_EQ(shapes->GetLiveShapeKind(triangle, &kind), ZM_ERR_NOT_FOUND);
}

TEST_F(SvgShapesThroughSuitesTest, ASharpRectsAnchorsAreCornersOfNoRadius) {
    // Four corner anchors, each a round absolute corner of radius 0.
    EXPECT_EQ(CornersOf(ArtNamed("rect"), ZM_LIVE_CORNERS_FROM_ANCHORS),
              (std::vector<CornerRead>(4, CornerRead{ZM_CORNER_ROUND, ZM_ROUNDING_ABSOLUTE, 0})));
}

TEST_F(SvgShapesThroughSuitesTest, ARoundedRectsCornersReadBackFromItsSegments) {
    // rx 4 px is 3 pt on each of the four corners, round and absolute.
    EXPECT_EQ(CornersOf(ArtNamed("rounded"), ZM_LIVE_CORNERS_FROM_LIVE_SHAPE),
              (std::vector<CornerRead>(4, CornerRead{ZM_CORNER_ROUND, ZM_ROUNDING_ABSOLUTE, 3})));
}

// anchors.svg: paths whose last point comes back to the first.
class SvgAnchorsThroughSuitesTest : public SvgGeometryThroughSuitesTest {
protected:
    void SetUp() override {
        SvgGeometryThroughSuitesTest::SetUp();
        Import("anchors.svg");
    }
};

TEST_F(SvgAnchorsThroughSuitesTest, AClosedSubpathCountsItsReturnToTheStartOnce) {
    // (0,0) (40,0) (40,30) and (0,0) again, then Z: three anchors. The sides are 40, 30 and
    // the 50 px hypotenuse: 120 px.
    ZMArtHandle returns = ArtNamed("returns");
    EXPECT_EQ(SegmentCount(returns), 3);
    EXPECT_TRUE(Closed(returns));
    EXPECT_NEAR(Length(returns), 90, 1e-9);
}

TEST_F(SvgAnchorsThroughSuitesTest, AnOpenSubpathCountsEveryPoint) {
    // The same points without Z: four anchors, and the same 120 px drawn.
    ZMArtHandle open = ArtNamed("returnsOpen");
    EXPECT_EQ(SegmentCount(open), 4);
    EXPECT_FALSE(Closed(open));
    EXPECT_NEAR(Length(open), 90, 1e-9);
}

TEST_F(SvgAnchorsThroughSuitesTest, RelativeCommandsMakeTheSameSquare) {
    // A 30 px square: four anchors, 120 px round.
    ZMArtHandle square = ArtNamed("relative");
    EXPECT_EQ(SegmentCount(square), 4);
    EXPECT_TRUE(Closed(square));
    EXPECT_NEAR(Length(square), 90, 1e-9);
}

TEST_F(SvgGeometryThroughSuitesTest, ARectOf100By50PixelsMeasures225Points) {
    Import("objects.svg");
    // 100 x 50 px is 75 x 37.5 pt: 2 * (75 + 37.5).
    EXPECT_NEAR(Length(ArtNamed("box")), 225, 1e-9);
}

TEST_F(SvgGeometryThroughSuitesTest, AViewBoxScalesLengths) {
    Import("viewbox.svg");
    // One user unit is 0.72 pt: the 50 x 25 box is 36 x 18 pt.
    EXPECT_NEAR(Length(ArtNamed("box")), 108, 1e-9);
    // scale(2) makes the 10-unit square 20 units, 14.4 pt a side.
    EXPECT_NEAR(Length(ArtNamed("moved")), 57.6, 1e-9);
}

// structure.svg: a rect with rx 2 px, a rect with per-corner attributes, a polygon path with
// zm:shape and zm:corner-radii 3 px, and an ellipse.
class SvgLiveShapesThroughSuitesTest : public SvgGeometryThroughSuitesTest {
protected:
    void SetUp() override {
        SvgGeometryThroughSuitesTest::SetUp();
        Import("structure.svg");
    }
};

TEST_F(SvgLiveShapesThroughSuitesTest, KindsOfLiveShape) {
    EXPECT_EQ(Kind(ArtNamed("plain")), ZM_LIVE_SHAPE_RECTANGLE);
    EXPECT_EQ(Kind(ArtNamed("corners")), ZM_LIVE_SHAPE_RECTANGLE);
    EXPECT_EQ(Kind(ArtNamed("poly")), ZM_LIVE_SHAPE_POLYGON);
    EXPECT_EQ(Kind(ArtNamed("oval")), ZM_LIVE_SHAPE_ELLIPSE);
}

TEST_F(SvgLiveShapesThroughSuitesTest, ARectWithRxHasFourRoundCornersOfThatRadius) {
    ZMArtHandle plain = ArtNamed("plain");
    EXPECT_EQ(SegmentCount(plain), 8);  // rounded
    // rx 2 px is 1.5 pt.
    EXPECT_EQ(CornersOf(plain, ZM_LIVE_CORNERS_FROM_LIVE_SHAPE),
              (std::vector<CornerRead>(4, CornerRead{ZM_CORNER_ROUND, ZM_ROUNDING_ABSOLUTE, 1.5})));
}

TEST_F(SvgLiveShapesThroughSuitesTest, PerCornerAttributesReadBackCornerByCorner) {
    // Radii 1 2 3 4 px in points, chamfer for all, rounding alternating from absolute.
    EXPECT_EQ(CornersOf(ArtNamed("corners"), ZM_LIVE_CORNERS_FROM_LIVE_SHAPE),
              (std::vector<CornerRead>{{ZM_CORNER_CHAMFER, ZM_ROUNDING_ABSOLUTE, 0.75},
                                       {ZM_CORNER_CHAMFER, ZM_ROUNDING_RELATIVE, 1.5},
                                       {ZM_CORNER_CHAMFER, ZM_ROUNDING_ABSOLUTE, 2.25},
                                       {ZM_CORNER_CHAMFER, ZM_ROUNDING_RELATIVE, 3}}));
}

TEST_F(SvgLiveShapesThroughSuitesTest, APolygonPathHasOneCornerPerPoint) {
    // Three points, each rounded by 3 px = 2.25 pt.
    EXPECT_EQ(
        CornersOf(ArtNamed("poly"), ZM_LIVE_CORNERS_FROM_LIVE_SHAPE),
        (std::vector<CornerRead>(3, CornerRead{ZM_CORNER_ROUND, ZM_ROUNDING_ABSOLUTE, 2.25})));
}

TEST_F(SvgLiveShapesThroughSuitesTest, AnEllipseHasNoCorners) {
    EXPECT_TRUE(CornersOf(ArtNamed("oval"), ZM_LIVE_CORNERS_FROM_LIVE_SHAPE).empty());
}

}  // namespace
}  // namespace zm::test
