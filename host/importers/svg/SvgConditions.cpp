#include "importers/svg/SvgConditions.hpp"

#include "importers/svg/SvgSyntax.hpp"

#include <array>
#include <string>

namespace zm::host::svg {

namespace {

constexpr std::array<std::string_view, 3> kDescriptiveNames{"title", "desc", "metadata"};

bool IsDescriptive(std::string_view name) {
    for (std::string_view descriptive : kDescriptiveNames) {
        if (name == descriptive) return true;
    }
    return false;
}

}  // namespace

bool MatchesSystemLanguage(std::string_view tags) {
    std::size_t from = 0;
    while (from <= tags.size()) {
        std::size_t comma = tags.find(',', from);
        if (comma == std::string_view::npos) {
            comma = tags.size();
        }
        std::string tag = AsciiLower(TrimSvgSpace(tags.substr(from, comma - from)));
        // The host speaks en-US, and so also plain "en": any tag of English matches.
        if (tag == "en" || std::string_view(tag).starts_with("en-")) {
            return true;
        }
        from = comma + 1;
    }
    return false;
}

bool PassesConditions(pugi::xml_node element) {
    if (pugi::xml_attribute extensions = element.attribute("requiredExtensions")) {
        if (!TrimSvgSpace(extensions.value()).empty()) {
            return false;
        }
    }
    if (pugi::xml_attribute languages = element.attribute("systemLanguage")) {
        if (!MatchesSystemLanguage(languages.value())) {
            return false;
        }
    }
    return true;
}

pugi::xml_node ChosenSwitchChild(const SvgNames& names, pugi::xml_node switchElement) {
    for (pugi::xml_node child : switchElement.children()) {
        std::string_view name = names.SvgName(child);
        if (child.type() != pugi::node_element || name.empty() || IsDescriptive(name)) {
            continue;
        }
        if (PassesConditions(child)) {
            return child;
        }
    }
    return {};
}

}  // namespace zm::host::svg
