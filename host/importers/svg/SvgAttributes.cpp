#include "importers/svg/SvgAttributes.hpp"

#include "importers/svg/SvgLength.hpp"
#include "importers/svg/SvgNumbers.hpp"

namespace zm::host::svg {

double LengthAttribute(pugi::xml_node element, const char* name, double fallback,
                       double percentBase, double fontSize) {
    pugi::xml_attribute attribute = element.attribute(name);
    if (!attribute) {
        return fallback;
    }
    auto length = ParseLength(attribute.value());
    return length ? ToPixels(*length, percentBase, fontSize) : fallback;
}

bool BooleanValue(std::string_view text, bool fallback) {
    text = TrimSvgSpace(text);
    if (text == "true") {
        return true;
    }
    if (text == "false") {
        return false;
    }
    return fallback;
}

std::vector<std::string_view> SplitWords(std::string_view text) {
    std::vector<std::string_view> words;
    std::size_t i = 0;
    while (i < text.size()) {
        while (i < text.size() && (IsSvgSpace(text[i]) || text[i] == ',')) {
            ++i;
        }
        std::size_t start = i;
        while (i < text.size() && !IsSvgSpace(text[i]) && text[i] != ',') {
            ++i;
        }
        if (i > start) {
            words.push_back(text.substr(start, i - start));
        }
    }
    return words;
}

}  // namespace zm::host::svg
