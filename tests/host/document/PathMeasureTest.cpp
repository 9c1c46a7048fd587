#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <document/PathMeasure.hpp>
#include <numbers>
#include <vector>

#include "support/DocumentBuilder.hpp"

namespace zm::host::document {
namespace {

double DistanceToPolyline(Point p, const std::vector<Point>& polyline) {
    double best = INFINITY;
    for (std::size_t i = 1; i < polyline.size(); ++i) {
        Point a = polyline[i - 1];
        Point b = polyline[i];
        double dx = b.x - a.x;
        double dy = b.y - a.y;
        double t =
            std::clamp(((p.x - a.x) * dx + (p.y - a.y) * dy) / (dx * dx + dy * dy), 0.0, 1.0);
        best = std::min(best, std::hypot(p.x - (a.x + t * dx), p.y - (a.y + t * dy)));
    }
    return best;
}

Point OnCurve(Point p0, Point p1, Point p2, Point p3, double t) {
    double u = 1 - t;
    double a = u * u * u;
    double b = 3 * u * u * t;
    double c = 3 * u * t * t;
    double d = t * t * t;
    return {a * p0.x + b * p1.x + c * p2.x + d * p3.x, a * p0.y + b * p1.y + c * p2.y + d * p3.y};
}

TEST(PathMeasureTest, StraightSegmentsMeasureExactly) {
    // 30 across, then 40 up: 70 open; closing back from (30, 40) to (0, 0) adds 50 (3-4-5).
    EXPECT_EQ(PathLength(zm::test::StraightPath({{0, 0}, {30, 0}, {30, 40}}, false), 0.5), 70.0);
    EXPECT_EQ(PathLength(zm::test::StraightPath({{0, 0}, {30, 0}, {30, 40}}, true), 0.5), 120.0);
}

TEST(PathMeasureTest, StraightSegmentsStayOnePieceEach) {
    std::vector<Point> points =
        FlattenPath(zm::test::StraightPath({{0, 0}, {30, 0}, {30, 40}}, true), 0.01);
    // The three anchors and the return to the first.
    EXPECT_EQ(points, (std::vector<Point>{{0, 0}, {30, 0}, {30, 40}, {0, 0}}));
}

TEST(PathMeasureTest, APathWithoutSegmentsOrWithOneAnchorHasNoLength) {
    EXPECT_EQ(PathLength(PathGeometry{}, 0.5), 0.0);
    EXPECT_EQ(PathLength(zm::test::StraightPath({{5, 5}}, false), 0.5), 0.0);
}

TEST(PathMeasureTest, EveryPointOfTheCurveLiesWithinFlatnessOfThePolyline) {
    PathGeometry circle = zm::test::CirclePath({0, 0}, 100);
    for (double flatness : {2.0, 0.5, 0.05}) {
        std::vector<Point> polyline = FlattenPath(circle, flatness);
        const auto& s = circle.segments;
        for (std::size_t i = 0; i < s.size(); ++i) {
            const Segment& from = s[i];
            const Segment& to = s[(i + 1) % s.size()];
            for (int step = 0; step <= 100; ++step) {
                Point p = OnCurve(from.anchor, from.out, to.in, to.anchor, step / 100.0);
                EXPECT_LE(DistanceToPolyline(p, polyline), flatness) << flatness;
            }
        }
    }
}

TEST(PathMeasureTest, ACircleMeasuresItsCircumferenceWithinTheFlatteningError) {
    // A chord whose arc bulges s from it falls short of the arc by about s/(3r) of its length,
    // so the flattened circle is at most 2 pi r * flatness / (3r) = 2 pi * flatness / 3 short.
    // The four-curve circle itself strays at most 0.03% from the true circle: 0.2 pt more.
    const double r = 100;
    const double circumference = 2 * std::numbers::pi * r;
    for (double flatness : {0.5, 0.01}) {
        double tolerance = 2 * std::numbers::pi * flatness / 3 + 0.2;
        EXPECT_NEAR(PathLength(zm::test::CirclePath({0, 0}, r), flatness), circumference, tolerance)
            << flatness;
    }
}

TEST(PathMeasureTest, AFinerFlatnessNeverMeasuresShorter) {
    // The finer polyline refines the coarser one, and a detour is never shorter.
    PathGeometry circle = zm::test::CirclePath({0, 0}, 100);
    EXPECT_LE(PathLength(circle, 5), PathLength(circle, 0.5));
    EXPECT_LE(PathLength(circle, 0.5), PathLength(circle, 0.01));
}

TEST(PathMeasureTest, FlatnessMustBePositive) {
    PathGeometry line = zm::test::StraightPath({{0, 0}, {1, 0}}, false);
    EXPECT_THROW(PathLength(line, 0), std::invalid_argument);
    EXPECT_THROW(PathLength(line, -1), std::invalid_argument);
    EXPECT_THROW(PathLength(line, NAN), std::invalid_argument);
}

}  // namespace
}  // namespace zm::host::document
