#pragma once

#include <compare>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace zm::host::fonts {

enum class FontSlant { Normal, Italic, Oblique };

// A font as a run of text names it.
struct FontRequest {
    std::string family;    // UTF-8, as the text writes it
    int32_t weight = 400;  // CSS weights: 400 regular, 700 bold
    FontSlant slant = FontSlant::Normal;

    friend auto operator<=>(const FontRequest&, const FontRequest&) = default;
};

// "normal", "italic" or "oblique" as CSS writes them; nothing for any other text.
std::optional<FontSlant> SlantFromText(std::string_view text);

}  // namespace zm::host::fonts
