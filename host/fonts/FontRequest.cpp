#include "fonts/FontRequest.hpp"

namespace zm::host::fonts {

std::optional<FontSlant> SlantFromText(std::string_view text) {
    if (text == "normal") {
        return FontSlant::Normal;
    }
    if (text == "italic") {
        return FontSlant::Italic;
    }
    if (text == "oblique") {
        return FontSlant::Oblique;
    }
    return std::nullopt;
}

}  // namespace zm::host::fonts
