#pragma once

#include <functional>
#include <optional>

#include "document/Art.hpp"
#include "document/Geometry.hpp"

namespace zm::host::document {

// The smallest rectangle holding what the art draws, in points: for a path the extremes of
// its curves (not its direction points), closing segment included; for a group, compound
// path or plug-in group the union of its members (a clip group: of its clipping paths, which
// is all that shows); the frame path of a text frame; Art::bounds wherever it is set. None for
// art without geometry (an empty group, a path without segments).
std::optional<Rect> ArtBounds(const Art& art);

// Moves a point of the model; ArtBoundsAfter expects an affine map, which keeps curves curves.
using PointMap = std::function<Point(const Point&)>;

// The bounds the art would have after every point of it is moved by map: paths and frame paths
// exactly, set bounds (Art::bounds) by their mapped corners.
std::optional<Rect> ArtBoundsAfter(const Art& art, const PointMap& map);

// The extremes of one path's curves; none without segments.
std::optional<Rect> PathBounds(const PathGeometry& path);

}  // namespace zm::host::document
