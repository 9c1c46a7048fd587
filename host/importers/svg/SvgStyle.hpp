#pragma once

#include "document/Paint.hpp"
#include "importers/svg/CssStyleSheet.hpp"
#include "importers/svg/SvgPaint.hpp"
#include "importers/svg/SvgTextLayout.hpp"

#include <pugixml.hpp>

#include <map>
#include <optional>
#include <string>
#include <unordered_map>

namespace zm::host::svg {

// The properties the importer reads, after the cascade and inheritance. Lengths are CSS
// pixels (user units).
struct ComputedStyle {
    // Inherited.
    PaintValue fill = [] {
        PaintValue black;
        black.kind = PaintValue::Kind::Color;
        black.color.color = document::Color::Black();
        return black;
    }();
    PaintValue stroke;  // none
    double fillOpacity = 1;
    double strokeOpacity = 1;
    bool evenOdd = false;
    double strokeWidth = 1;
    ParsedColor color{document::Color::Black(), 1, false};  // what currentColor means
    std::string fontFamily;                                 // the first family, unquoted
    double fontSize = 16;
    int fontWeight = 400;
    std::string fontStyle = "normal";
    TextAnchor textAnchor = TextAnchor::Start;
    // Not inherited.
    double opacity = 1;
    document::BlendMode blendMode = document::BlendMode::Normal;
    std::string clipPath;     // id of the clipPath, empty for none
    std::string mask;         // id of the mask, empty for none
    std::string shapeInside;  // id of the shape text flows in, empty for none
    std::optional<double> inlineSize;
    ParsedColor stopColor{document::Color::Black(), 1, false};
    double stopOpacity = 1;
    // The element's own declared values (after the cascade, before inheritance).
    std::map<std::string, std::string> declared;
};

// Computes and keeps each element's style; an element's parent is computed first.
class StyleResolver {
public:
    explicit StyleResolver(const CssStyleSheet& sheet) : sheet_(sheet) {}

    const ComputedStyle& For(pugi::xml_node element);

private:
    ComputedStyle Compute(pugi::xml_node element, const ComputedStyle& parent) const;

    const CssStyleSheet& sheet_;
    ComputedStyle initial_;
    std::unordered_map<const void*, ComputedStyle> cache_;
};

// "Arial, 'Noto Sans', serif" -> "Arial".
std::string FirstFontFamily(std::string_view list);

// CSS mix-blend-mode names; nothing for an unknown name.
std::optional<document::BlendMode> BlendModeNamed(std::string_view name);

}  // namespace zm::host::svg
