#include "importers/svg/SvgShapes.hpp"

#include <algorithm>

namespace zm::host::svg {

using document::Point;

namespace {

// A quarter ellipse from `from` to `to` around `corner` of the box they share: the handles
// point along the box's sides towards the corner.
void QuarterArc(Subpath& subpath, const Point& from, const Point& corner, const Point& to) {
    Point c1{from.x + kCircleKappa * (corner.x - from.x),
             from.y + kCircleKappa * (corner.y - from.y)};
    Point c2{to.x + kCircleKappa * (corner.x - to.x), to.y + kCircleKappa * (corner.y - to.y)};
    subpath.CurveTo(c1, c2, to);
}

}  // namespace

Subpath RectOutline(double x, double y, double width, double height, double rx, double ry) {
    width = std::max(0.0, width);
    height = std::max(0.0, height);
    rx = std::clamp(rx, 0.0, width / 2);
    ry = std::clamp(ry, 0.0, height / 2);
    Subpath outline;
    outline.closed = true;
    double right = x + width;
    double bottom = y + height;
    if (rx <= 0 || ry <= 0) {
        outline.start = {x, y};
        outline.LineTo({right, y});
        outline.LineTo({right, bottom});
        outline.LineTo({x, bottom});
        return outline;
    }
    // Clockwise on screen from the top edge's left end, as SVG draws a rounded rect.
    outline.returnsToStart = true;
    outline.start = {x + rx, y};
    outline.LineTo({right - rx, y});
    QuarterArc(outline, {right - rx, y}, {right, y}, {right, y + ry});
    outline.LineTo({right, bottom - ry});
    QuarterArc(outline, {right, bottom - ry}, {right, bottom}, {right - rx, bottom});
    outline.LineTo({x + rx, bottom});
    QuarterArc(outline, {x + rx, bottom}, {x, bottom}, {x, bottom - ry});
    outline.LineTo({x, y + ry});
    QuarterArc(outline, {x, y + ry}, {x, y}, {x + rx, y});
    return outline;
}

Subpath EllipseOutline(double cx, double cy, double rx, double ry) {
    rx = std::max(0.0, rx);
    ry = std::max(0.0, ry);
    Subpath outline;
    outline.closed = true;
    Point right{cx + rx, cy}, bottom{cx, cy + ry}, left{cx - rx, cy}, top{cx, cy - ry};
    outline.returnsToStart = true;
    outline.start = right;
    QuarterArc(outline, right, {cx + rx, cy + ry}, bottom);
    QuarterArc(outline, bottom, {cx - rx, cy + ry}, left);
    QuarterArc(outline, left, {cx - rx, cy - ry}, top);
    QuarterArc(outline, top, {cx + rx, cy - ry}, right);
    return outline;
}

Subpath LineOutline(double x1, double y1, double x2, double y2) {
    Subpath outline;
    outline.start = {x1, y1};
    outline.LineTo({x2, y2});
    return outline;
}

std::vector<Subpath> PolyOutline(const std::vector<double>& coordinates, bool closed) {
    std::size_t points = coordinates.size() / 2;
    if (points == 0) {
        return {};
    }
    Subpath outline;
    outline.closed = closed;
    outline.start = {coordinates[0], coordinates[1]};
    outline.pieces.reserve(points - 1);
    for (std::size_t i = 1; i < points; ++i) {
        outline.LineTo({coordinates[2 * i], coordinates[2 * i + 1]});
    }
    return {std::move(outline)};
}

}  // namespace zm::host::svg
