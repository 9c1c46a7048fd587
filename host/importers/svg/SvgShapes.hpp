#pragma once

#include "importers/svg/SvgPathData.hpp"

#include <vector>

namespace zm::host::svg {

// The outline of each basic shape as one subpath in user units, drawn as SVG draws it.

// Four corners, or eight anchors when rounded (each corner a quarter ellipse). Radii are
// already resolved (rx alone sets ry and the other way round) and are clamped to half the
// side. Negative sizes count as 0.
Subpath RectOutline(double x, double y, double width, double height, double rx, double ry);
// Four quarter arcs starting at the rightmost point, each a cubic with the usual handle
// length 0.5522847498 of the radius.
Subpath EllipseOutline(double cx, double cy, double rx, double ry);
Subpath LineOutline(double x1, double y1, double x2, double y2);
// Coordinates in pairs; an odd last number is dropped. Nothing for fewer than one point.
std::vector<Subpath> PolyOutline(const std::vector<double>& coordinates, bool closed);

inline constexpr double kCircleKappa = 0.5522847498;

}  // namespace zm::host::svg
