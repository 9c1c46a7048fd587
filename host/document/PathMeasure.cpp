#include "document/PathMeasure.hpp"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <stdexcept>

namespace zm::host::document {

namespace {

// Deep enough for any curve a document holds at any sensible flatness (2^20 pieces), shallow
// enough that a curve with unusable coordinates cannot recurse for ever.
constexpr int kMaxDepth = 20;

Point Mid(Point a, Point b) { return {(a.x + b.x) / 2, (a.y + b.y) / 2}; }

double Distance(Point a, Point b) { return std::hypot(b.x - a.x, b.y - a.y); }

// Distance from p to the segment a-b (not to its line: a direction point beyond an end of
// the chord is that far from the polyline).
double DistanceToChord(Point p, Point a, Point b) {
    double dx = b.x - a.x;
    double dy = b.y - a.y;
    double lengthSquared = dx * dx + dy * dy;
    if (lengthSquared == 0) {
        return Distance(p, a);
    }
    double t = std::clamp(((p.x - a.x) * dx + (p.y - a.y) * dy) / lengthSquared, 0.0, 1.0);
    return Distance(p, {a.x + t * dx, a.y + t * dy});
}

// The curve lies inside the hull of its four points, so when both direction points are
// within flatness of the chord, the whole curve is.
void FlattenCurve(Point p0, Point p1, Point p2, Point p3, double flatness, int depth,
                  std::vector<Point>& out) {
    bool flat = DistanceToChord(p1, p0, p3) <= flatness && DistanceToChord(p2, p0, p3) <= flatness;
    if (flat || depth >= kMaxDepth) {
        out.push_back(p3);
        return;
    }
    // de Casteljau at t = 0.5.
    Point p01 = Mid(p0, p1);
    Point p12 = Mid(p1, p2);
    Point p23 = Mid(p2, p3);
    Point p012 = Mid(p01, p12);
    Point p123 = Mid(p12, p23);
    Point middle = Mid(p012, p123);
    FlattenCurve(p0, p01, p012, middle, flatness, depth + 1, out);
    FlattenCurve(middle, p123, p23, p3, flatness, depth + 1, out);
}

}  // namespace

std::vector<Point> FlattenPath(const PathGeometry& path, double flatness) {
    if (!(flatness > 0)) {
        throw std::invalid_argument("flatness must be positive");
    }
    std::vector<Point> points;
    const std::vector<Segment>& segments = path.segments;
    if (segments.empty()) {
        return points;
    }
    points.push_back(segments.front().anchor);
    std::size_t pieces = path.closed ? segments.size() : segments.size() - 1;
    for (std::size_t i = 0; i < pieces; ++i) {
        const Segment& from = segments[i];
        const Segment& to = segments[(i + 1) % segments.size()];
        FlattenCurve(from.anchor, from.out, to.in, to.anchor, flatness, 0, points);
    }
    return points;
}

double PathLength(const PathGeometry& path, double flatness) {
    std::vector<Point> points = FlattenPath(path, flatness);
    double length = 0;
    for (std::size_t i = 1; i < points.size(); ++i) {
        length += Distance(points[i - 1], points[i]);
    }
    return length;
}

}  // namespace zm::host::document
