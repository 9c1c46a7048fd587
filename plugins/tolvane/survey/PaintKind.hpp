#pragma once

#include <cstdint>

namespace tolvane {

// What one paint, or all paints of one object joined, are made of. Each set bit raises its
// counter of the survey record once per object.
using PaintKind = uint32_t;

inline constexpr PaintKind kPaintGray = 1u << 0;      // grayObjectCount
inline constexpr PaintKind kPaintRgb = 1u << 1;       // rgbObjectCount
inline constexpr PaintKind kPaintCmyk = 1u << 2;      // cmykObjectCount
inline constexpr PaintKind kPaintSpot = 1u << 3;      // spotObjectCount
inline constexpr PaintKind kPaintPattern = 1u << 4;   // patternObjectCount
inline constexpr PaintKind kPaintGradient = 1u << 5;  // gradientObjectCount

}  // namespace tolvane
