#pragma once

#include "ostcore/Export.hpp"
#include "ostui/FontFace.hpp"

#include <string>
#include <string_view>
#include <vector>

namespace ostui {

// Breaks text into the lines a multi-line control shows at a width. "\r\n", "\n" and a lone
// "\r" end a line; within a paragraph words separated by blanks go greedily onto a line while
// the line's advance stays within `width`; the blank at a break is dropped. A word wider than
// the width stands alone on its line rather than being cut. A line break at the very end of
// the text does not start another line, and an empty text has no lines.
OST_API std::vector<std::string> WrapText(const FontFace& face, std::string_view text,
                                          float width);

}  // namespace ostui
