#pragma once

#include <pugixml.hpp>

#include <string>
#include <string_view>
#include <vector>

namespace zm::host::svg {

// The namespace URIs the importer reads, and the prefixes a document binds them to.
inline constexpr std::string_view kZelmoraNamespace = "https://zelmora.example/ns/1.0";
inline constexpr std::string_view kInkscapeNamespace =
    "http://www.inkscape.org/namespaces/inkscape";
inline constexpr std::string_view kSodipodiNamespace =
    "http://sodipodi.sourceforge.net/DTD/sodipodi-0.dtd";
inline constexpr std::string_view kXlinkNamespace = "http://www.w3.org/1999/xlink";
inline constexpr std::string_view kSvgNamespace = "http://www.w3.org/2000/svg";
inline constexpr std::string_view kOpenSwatchBookNamespace =
    "http://www.openswatchbook.org/uri/2009/osb";

enum class Vocabulary { Zelmora, Inkscape, Sodipodi, Xlink, Svg, OpenSwatchBook };

// XML names by namespace. pugixml keeps prefixed names as written, so the prefixes that a
// document declares are looked up once; each namespace also answers to its usual prefix
// ("zm", "inkscape", ...), so a file that forgets to declare it still reads.
class SvgNames {
public:
    explicit SvgNames(pugi::xml_node root);

    pugi::xml_attribute Attribute(pugi::xml_node element, Vocabulary vocabulary,
                                  std::string_view local) const;
    // The attribute's value, empty when absent.
    std::string_view Value(pugi::xml_node element, Vocabulary vocabulary,
                           std::string_view local) const {
        return Attribute(element, vocabulary, local).value();
    }
    // href, else xlink:href.
    std::string_view Href(pugi::xml_node element) const;
    // The id an href names ("#id" -> "id"); empty when it names no element of this document.
    std::string HrefId(pugi::xml_node element) const;

    // The element's local name when it is in that vocabulary, else empty.
    std::string_view LocalName(pugi::xml_node element, Vocabulary vocabulary) const;
    // An SVG element's local name ("rect" for <rect> and <svg:rect>), else empty.
    std::string_view SvgName(pugi::xml_node element) const {
        return LocalName(element, Vocabulary::Svg);
    }
    bool Is(pugi::xml_node element, Vocabulary vocabulary, std::string_view local) const {
        return element.type() == pugi::node_element && LocalName(element, vocabulary) == local;
    }

private:
    const std::vector<std::string>& Prefixes(Vocabulary vocabulary) const;

    std::vector<std::string> prefixes_[6];
};

}  // namespace zm::host::svg
