#include "importers/svg/SvgSyntax.hpp"

namespace zm::host::svg {

bool IsSvgSpace(char c) { return c == ' ' || c == '\t' || c == '\n' || c == '\r' || c == '\f'; }

std::string_view TrimSvgSpace(std::string_view text) {
    while (!text.empty() && IsSvgSpace(text.front())) {
        text.remove_prefix(1);
    }
    while (!text.empty() && IsSvgSpace(text.back())) {
        text.remove_suffix(1);
    }
    return text;
}

std::string AsciiLower(std::string_view text) {
    std::string lower(text);
    for (char& c : lower) {
        if (c >= 'A' && c <= 'Z') {
            c = static_cast<char>(c - 'A' + 'a');
        }
    }
    return lower;
}

int HexDigitValue(char c) {
    if (c >= '0' && c <= '9') return c - '0';
    if (c >= 'a' && c <= 'f') return c - 'a' + 10;
    if (c >= 'A' && c <= 'F') return c - 'A' + 10;
    return -1;
}

}  // namespace zm::host::svg
