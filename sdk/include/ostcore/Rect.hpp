#pragma once

#include "ostcore/Point.hpp"

namespace ostcore {

// A rectangle of four floats: its top-left corner and its size, in points.
struct Rect {
    float x = 0.0f;
    float y = 0.0f;
    float width = 0.0f;
    float height = 0.0f;

    float Right() const { return x + width; }
    float Bottom() const { return y + height; }
    bool IsEmpty() const { return width <= 0.0f || height <= 0.0f; }
    // The right and bottom edges are outside, so rectangles that touch share no point.
    bool Contains(Point point) const {
        return point.x >= x && point.x < Right() && point.y >= y && point.y < Bottom();
    }

    friend bool operator==(const Rect&, const Rect&) = default;
};

}  // namespace ostcore
