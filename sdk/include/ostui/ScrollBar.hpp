#pragma once

namespace ostui {

// The width of a vertical scroll bar, which views that scroll keep free at their right edge.
// The resize gripper sits in the square below it, so a gripper gap has the same size.
inline constexpr float kVerticalScrollBarWidth = 15.0f;

}  // namespace ostui
