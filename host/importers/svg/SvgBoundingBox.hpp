#pragma once

#include "document/Art.hpp"
#include "importers/svg/SvgTransform.hpp"

#include <optional>

namespace zm::host::svg {

// An element's bounding box in its own user units (SVG's y grows downwards: y is the top).
struct UserBox {
    double x = 0, y = 0, width = 0, height = 0;
};

// The box of what the art draws, taken back from model points into the user units that
// toModel maps from; none for art without geometry or a map that cannot be undone.
std::optional<UserBox> UserBoundingBox(const document::Art& art, const Affine& toModel);

// objectBoundingBox units to user units: (0, 0) is the box's corner, (1, 1) the opposite one.
Affine BoundingBoxUnits(const UserBox& box);

}  // namespace zm::host::svg
