#pragma once

#include <vector>

namespace zm::host::document {

// Page coordinates in points, y growing upwards, origin at the bottom-left corner of the
// document, as the suites report them.
struct Point {
    double x = 0;
    double y = 0;
    friend bool operator==(const Point&, const Point&) = default;
};

// top is above bottom: height is top - bottom.
struct Rect {
    double left = 0;
    double top = 0;
    double right = 0;
    double bottom = 0;
    friend bool operator==(const Rect&, const Rect&) = default;
};

// One anchor point of a path with its two direction points; a segment whose direction
// points sit on its anchor is a corner point joined by straight lines.
struct Segment {
    Point anchor;
    Point in;   // direction point of the curve arriving at the anchor
    Point out;  // direction point of the curve leaving the anchor
    bool corner = true;
    friend bool operator==(const Segment&, const Segment&) = default;
};

// The geometry of one path object: one subpath.
struct PathGeometry {
    std::vector<Segment> segments;
    bool closed = false;
};

}  // namespace zm::host::document
