#pragma once

#include "document/Geometry.hpp"

#include <optional>
#include <string_view>

namespace zm::host::svg {

// An affine map x' = a x + c y + e, y' = b x + d y + f, as SVG's matrix(a b c d e f) writes it.
struct Affine {
    double a = 1, b = 0, c = 0, d = 1, e = 0, f = 0;

    static Affine Translate(double tx, double ty) { return {1, 0, 0, 1, tx, ty}; }
    static Affine Scale(double sx, double sy) { return {sx, 0, 0, sy, 0, 0}; }
    static Affine Rotate(double degrees);

    // Apply `inner` first, then this.
    Affine operator*(const Affine& inner) const;
    // Each coordinate is kept finite (see ClampCoordinate), so absurd transforms still give
    // usable geometry.
    document::Point Apply(const document::Point& p) const;
    // The map that undoes this one; none when it flattens the plane (or nearly so).
    std::optional<Affine> Inverse() const;
    // How much the map scales lengths: the square root of the area factor.
    double LengthScale() const;
};

// The bounding box of the user-space rectangle (left, top, right, bottom; SVG's y grows
// downwards) after the map.
document::Rect TransformedBounds(const Affine& map, double left, double top, double right,
                                 double bottom);

// The transform attribute's list ("translate(10 20) rotate(45)"). A list with a syntax error
// is ignored as a whole, as a browser ignores it.
std::optional<Affine> ParseTransform(std::string_view text);

}  // namespace zm::host::svg
