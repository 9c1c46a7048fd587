#pragma once

#include <string>
#include <string_view>

namespace zm::host::svg {

// Small pieces of the syntax SVG, CSS and URLs share.

// Blanks as XML and CSS know them.
bool IsSvgSpace(char c);
std::string_view TrimSvgSpace(std::string_view text);

// ASCII letters in lower case; keywords and units compare this way, other bytes as written.
std::string AsciiLower(std::string_view text);

// 0..15 for a hexadecimal digit, -1 for anything else.
int HexDigitValue(char c);

}  // namespace zm::host::svg
