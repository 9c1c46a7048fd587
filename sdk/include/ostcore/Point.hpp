#pragma once

namespace ostcore {

// A point in view coordinates: points, y growing downwards.
struct Point {
    float x = 0.0f;
    float y = 0.0f;

    friend bool operator==(const Point&, const Point&) = default;
};

}  // namespace ostcore
