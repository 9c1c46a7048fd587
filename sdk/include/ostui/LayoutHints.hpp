#pragma once

#include "ostui/Orientation.hpp"

namespace ostui {

// What the layout engine needs to know about a view: its own size when it does not fill,
// whether it takes the room left along each axis, and how it stacks its own children.
struct LayoutHints {
    float width = 0.0f;   // used when not filling horizontally
    float height = 0.0f;  // used when not filling vertically
    bool fillHorizontal = false;
    bool fillVertical = false;
    Orientation orientation = Orientation::Vertical;
    float margin = 0.0f;  // inset of the children from every edge of this view
};

}  // namespace ostui
