#pragma once

#include "importers/svg/SvgColor.hpp"

#include <optional>
#include <string>
#include <string_view>

namespace zm::host::svg {

// A fill or stroke value before its url() is looked up.
struct PaintValue {
    enum class Kind { None, Color, CurrentColor, Url };
    Kind kind = Kind::None;
    ParsedColor color;  // Kind::Color
    std::string url;    // Kind::Url: the id, without '#'
    // What a url() falls back to when its target is missing: none when not given.
    Kind fallbackKind = Kind::None;
    ParsedColor fallbackColor;
};

// "none", a colour (see ParseColor), "currentColor", "url(#id)" or "url(#id) <fallback>".
// Nothing for an invalid value, which then leaves the property as if not set.
std::optional<PaintValue> ParsePaint(std::string_view text);

// The id that "url(#id)" (or "url('#id')") names, for clip-path, mask, shape-inside and
// paint; nothing when the text is no local url().
std::optional<std::string> ParseLocalUrl(std::string_view text, std::string_view* rest = nullptr);

}  // namespace zm::host::svg
