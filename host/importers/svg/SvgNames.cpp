#include "importers/svg/SvgNames.hpp"

#include <algorithm>
#include <array>

namespace zm::host::svg {

namespace {

struct KnownVocabulary {
    Vocabulary vocabulary;
    std::string_view uri;
    std::string_view usualPrefix;  // empty: the default namespace
};

constexpr std::array<KnownVocabulary, 6> kVocabularies{{
    {Vocabulary::Zelmora, kZelmoraNamespace, "zm"},
    {Vocabulary::Inkscape, kInkscapeNamespace, "inkscape"},
    {Vocabulary::Sodipodi, kSodipodiNamespace, "sodipodi"},
    {Vocabulary::Xlink, kXlinkNamespace, "xlink"},
    {Vocabulary::Svg, kSvgNamespace, ""},
    {Vocabulary::OpenSwatchBook, kOpenSwatchBookNamespace, "osb"},
}};

void AddOnce(std::vector<std::string>& list, std::string_view prefix) {
    if (std::find(list.begin(), list.end(), prefix) == list.end()) {
        list.emplace_back(prefix);
    }
}

}  // namespace

SvgNames::SvgNames(pugi::xml_node root) {
    for (const auto& known : kVocabularies) {
        AddOnce(prefixes_[static_cast<int>(known.vocabulary)], known.usualPrefix);
    }
    // Declarations may sit on any element; walk the tree without recursion.
    for (pugi::xml_node node = root; node;) {
        for (pugi::xml_attribute attribute : node.attributes()) {
            std::string_view name = attribute.name();
            if (!name.starts_with("xmlns")) {
                continue;
            }
            std::string_view prefix = name.size() > 6 && name[5] == ':' ? name.substr(6) : "";
            if (name.size() > 5 && name[5] != ':') {
                continue;
            }
            for (const auto& known : kVocabularies) {
                if (known.uri == attribute.value()) {
                    AddOnce(prefixes_[static_cast<int>(known.vocabulary)], prefix);
                }
            }
        }
        if (node.first_child()) {
            node = node.first_child();
            continue;
        }
        while (node && node != root && !node.next_sibling()) {
            node = node.parent();
        }
        node = node && node != root ? node.next_sibling() : pugi::xml_node();
    }
}

const std::vector<std::string>& SvgNames::Prefixes(Vocabulary vocabulary) const {
    return prefixes_[static_cast<int>(vocabulary)];
}

pugi::xml_attribute SvgNames::Attribute(pugi::xml_node element, Vocabulary vocabulary,
                                        std::string_view local) const {
    std::string name;
    for (const auto& prefix : Prefixes(vocabulary)) {
        // Unprefixed attributes are in no namespace, so only SVG's own answer to them.
        if (prefix.empty() && vocabulary != Vocabulary::Svg) {
            continue;
        }
        name = prefix.empty() ? std::string(local) : prefix + ":" + std::string(local);
        if (pugi::xml_attribute attribute = element.attribute(name.c_str())) {
            return attribute;
        }
    }
    return {};
}

std::string_view SvgNames::Href(pugi::xml_node element) const {
    if (pugi::xml_attribute plain = element.attribute("href")) {
        return plain.value();
    }
    return Value(element, Vocabulary::Xlink, "href");
}

std::string SvgNames::HrefId(pugi::xml_node element) const {
    std::string_view href = Href(element);
    while (!href.empty() && (href.front() == ' ' || href.front() == '\t' || href.front() == '\n')) {
        href.remove_prefix(1);
    }
    if (href.size() < 2 || href.front() != '#') {
        return {};
    }
    return std::string(href.substr(1));
}

std::string_view SvgNames::LocalName(pugi::xml_node element, Vocabulary vocabulary) const {
    std::string_view name = element.name();
    auto colon = name.find(':');
    std::string_view prefix = colon == std::string_view::npos ? "" : name.substr(0, colon);
    std::string_view local = colon == std::string_view::npos ? name : name.substr(colon + 1);
    for (const auto& candidate : Prefixes(vocabulary)) {
        if (candidate == prefix) {
            return local;
        }
    }
    return {};
}

}  // namespace zm::host::svg
