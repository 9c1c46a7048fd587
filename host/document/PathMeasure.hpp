#pragma once

#include <vector>

#include "document/Geometry.hpp"

namespace zm::host::document {

// A path turned into straight pieces: the first anchor, then the end of every piece, so that
// no point of a curve lies farther than `flatness` points from the polyline. Curves are split
// in halves until their direction points lie that close to the chord; straight segments stay
// one piece. A closed path ends back at its first anchor. flatness must be positive.
std::vector<Point> FlattenPath(const PathGeometry& path, double flatness);

// The length in points of the flattened path, closing segment included for a closed path.
double PathLength(const PathGeometry& path, double flatness);

}  // namespace zm::host::document
