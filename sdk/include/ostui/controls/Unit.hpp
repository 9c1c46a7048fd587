#pragma once

namespace ostui::controls {

// Measurement units a value can be shown in. Values are kept in points.
enum class Unit { Points, Pixels, Inches, Millimeters, Centimeters, Picas };

}  // namespace ostui::controls
