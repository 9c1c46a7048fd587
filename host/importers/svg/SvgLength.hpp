#pragma once

#include "document/Document.hpp"

#include <optional>
#include <string_view>

namespace zm::host::svg {

// SVG user units are CSS pixels; the model keeps points.
inline constexpr double kPointsPerPixel = 0.75;

enum class LengthUnit { None, Px, Pt, Pc, In, Mm, Cm, Em, Ex, Percent };

struct Length {
    double value = 0;
    LengthUnit unit = LengthUnit::None;
};

// "12", "12.5pt", "3mm", "50%". Unknown units and non-finite numbers give nothing, so the
// attribute is ignored as a browser ignores it.
std::optional<Length> ParseLength(std::string_view text);

// CSS pixels. Percentages are of percentBase (pixels), em of fontSize (pixels), ex half that.
double ToPixels(const Length& length, double percentBase = 0, double fontSize = 16);

// The ruler units a length's unit names; a plain number and px are pixels. None for units
// that are no ruler unit (em, %).
std::optional<document::RulerUnits> RulerUnitsOf(LengthUnit unit);
// "pt", "px", "in", "mm", "cm", "pc".
std::optional<document::RulerUnits> RulerUnitsNamed(std::string_view name);

// Keeps a coordinate or size a finite, sane number of points or pixels: documents with
// absurd values still open, their geometry pinned to this range.
double ClampCoordinate(double value);
inline constexpr double kCoordinateLimit = 1e9;

}  // namespace zm::host::svg
