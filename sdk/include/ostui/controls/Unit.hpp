#pragma once

namespace ostui::controls {

// Measurement units a value can be shown in, by their codes. Values are kept in points, the
// unit of code 1.
enum class Unit { Points = 1, Pixels, Inches, Millimeters, Centimeters, Picas };

// Units that stand for one of the above, whichever the application says at the moment it is
// asked (UnitHandlerRegistry::GetNativeUnit). Code 2 is the unit of the current document's
// rulers.
enum class CustomUnit { Ruler = 2 };

}  // namespace ostui::controls
