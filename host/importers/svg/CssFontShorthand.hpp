#pragma once

#include "importers/svg/CssStyleSheet.hpp"

#include <optional>
#include <string_view>
#include <vector>

namespace zm::host::svg {

// The `font` shorthand ("italic bold 12px/30px Georgia, serif") as the longhands it sets:
// font-style, font-variant, font-weight, font-size, line-height and font-family (the whole
// family list), each left out part at its initial value, every one marked important when the
// shorthand is. Style, variant, weight and stretch words come first in any order, then the
// size, an optional "/line-height", then the families. Nothing for a value that is not such a
// list (a system font name, a missing size or family), which CSS then ignores. "inherit"
// makes every longhand inherit.
std::optional<std::vector<CssDeclaration>> ExpandFontShorthand(std::string_view value,
                                                               bool important);

}  // namespace zm::host::svg
