#pragma once

#include "document/Paint.hpp"

#include <array>
#include <optional>
#include <string_view>

namespace zm::host::svg {

// A colour as CSS writes it. currentColor stands for the element's `color` property and is
// resolved by the caller.
struct ParsedColor {
    document::Color color;  // kind Rgb, Cmyk or Gray
    double alpha = 1;
    bool currentColor = false;
};

// Named colours, #rgb, #rgba, #rrggbb, #rrggbbaa, rgb()/rgba() (numbers or percentages,
// commas or blanks, "/ alpha"), hsl()/hsla(), transparent, currentColor; and the device
// colours device-cmyk(c m y k) (CMYK kind) and device-gray(g) (gray kind). Components are
// numbers 0..1 or percentages. Nothing for anything else.
std::optional<ParsedColor> ParseColor(std::string_view text);

// lab(L a b), as swatches write Lab colours: L 0..100 (or a percentage), a and b as numbers.
std::optional<std::array<double, 3>> ParseLab(std::string_view text);

}  // namespace zm::host::svg
