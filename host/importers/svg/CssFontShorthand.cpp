#include "importers/svg/CssFontShorthand.hpp"

#include "importers/svg/SvgLength.hpp"
#include "importers/svg/SvgNumbers.hpp"

#include <array>
#include <string>

namespace zm::host::svg {

namespace {

constexpr std::array<std::string_view, 6> kLonghands{
    "font-style", "font-variant", "font-weight", "font-size", "line-height", "font-family"};

constexpr std::array<std::string_view, 10> kSizeKeywords{
    "xx-small", "x-small", "small",     "medium",  "large",
    "x-large",  "xx-large", "xxx-large", "smaller", "larger"};

constexpr std::array<std::string_view, 9> kStretchWords{
    "ultra-condensed", "extra-condensed", "condensed",      "semi-condensed", "semi-expanded",
    "expanded",        "extra-expanded",  "ultra-expanded", "normal"};

template <std::size_t N>
bool IsOneOf(std::string_view word, const std::array<std::string_view, N>& words) {
    for (std::string_view candidate : words) {
        if (word == candidate) return true;
    }
    return false;
}

bool IsWeight(std::string_view word) {
    if (word == "bold" || word == "bolder" || word == "lighter") return true;
    auto value = ParseNumber(word);
    // A bare number before the size can only be a weight; sizes need a unit.
    return value && *value >= 1 && *value <= 1000 && word.find_first_not_of("0123456789.") ==
                                                         std::string_view::npos;
}

bool IsSize(std::string_view word) {
    if (IsOneOf(word, kSizeKeywords)) return true;
    auto length = ParseLength(word);
    return length && length->value >= 0 && (length->unit != LengthUnit::None || length->value == 0);
}

// The next word: up to a blank or a slash.
std::string_view NextWord(std::string_view text, std::size_t& i) {
    while (i < text.size() && IsSvgSpace(text[i])) ++i;
    std::size_t start = i;
    while (i < text.size() && !IsSvgSpace(text[i]) && text[i] != '/') ++i;
    return text.substr(start, i - start);
}

}  // namespace

std::optional<std::vector<CssDeclaration>> ExpandFontShorthand(std::string_view value,
                                                               bool important) {
    value = TrimSvgSpace(value);
    std::array<std::string, 6> values{"normal", "normal", "normal", "medium", "normal", ""};
    auto set = [&](std::string_view longhand, std::string_view text) {
        for (std::size_t i = 0; i < kLonghands.size(); ++i) {
            if (kLonghands[i] == longhand) values[i] = std::string(text);
        }
    };
    if (AsciiLower(value) == "inherit") {
        values.fill("inherit");
    } else {
        std::size_t i = 0;
        std::string_view word;
        // At most four words before the size: style, variant, weight, stretch.
        for (int words = 0;; ++words) {
            word = NextWord(value, i);
            std::string lower = AsciiLower(word);
            if (word.empty() || words > 4) {
                return std::nullopt;
            }
            if (lower == "normal") {
                continue;  // leaves one of them at its initial value
            } else if (lower == "italic" || lower == "oblique") {
                set("font-style", lower);
            } else if (lower == "small-caps") {
                set("font-variant", lower);
            } else if (IsWeight(lower)) {
                set("font-weight", lower);
            } else if (IsOneOf(std::string_view(lower), kStretchWords)) {
                continue;  // font-stretch is not one the importer reads
            } else if (IsSize(lower)) {
                set("font-size", word);
                break;
            } else {
                return std::nullopt;
            }
        }
        while (i < value.size() && IsSvgSpace(value[i])) ++i;
        if (i < value.size() && value[i] == '/') {
            ++i;
            std::string_view lineHeight = NextWord(value, i);
            if (lineHeight.empty()) {
                return std::nullopt;
            }
            set("line-height", lineHeight);
        }
        std::string_view families = TrimSvgSpace(value.substr(i));
        if (families.empty() || families.front() == ',') {
            return std::nullopt;
        }
        set("font-family", families);
    }
    std::vector<CssDeclaration> longhands;
    for (std::size_t i = 0; i < kLonghands.size(); ++i) {
        longhands.push_back({std::string(kLonghands[i]), values[i], important});
    }
    return longhands;
}

}  // namespace zm::host::svg
