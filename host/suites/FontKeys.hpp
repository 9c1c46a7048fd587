#pragma once

#include "fonts/FontCatalogue.hpp"

#include <zelmora/ZMFontSuite.h>

#include <cstdint>
#include <string_view>

namespace zm::host {

// The catalogue's font for a family, a CSS weight and a style as text names them. An empty
// family, a weight outside 1..1000 or a style other than "normal", "italic" or "oblique" is
// HostError(ZM_ERR_BAD_ARGUMENT).
const fonts::CatalogueFont& FindCatalogueFont(fonts::FontCatalogue& catalogue,
                                              std::string_view family, int32_t weight,
                                              std::string_view style);

// A font key is the address of its catalogue font.
inline ZMFontKey ToFontKey(const fonts::CatalogueFont& font) {
    return reinterpret_cast<ZMFontKey>(const_cast<fonts::CatalogueFont*>(&font));
}

}  // namespace zm::host
