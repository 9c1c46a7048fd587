#include "importers/svg/SvgStyle.hpp"

#include "importers/svg/SvgLength.hpp"
#include "importers/svg/SvgNumbers.hpp"

#include <algorithm>
#include <array>
#include <cmath>
#include <string_view>

namespace zm::host::svg {

namespace {

using document::BlendMode;

constexpr std::array<std::string_view, 23> kPresentationAttributes{
    "fill",         "stroke",       "fill-opacity",   "stroke-opacity", "fill-rule",
    "stroke-width", "color",        "font-family",    "font-size",      "font-weight",
    "font-style",   "opacity",      "mix-blend-mode", "clip-path",      "mask",
    "stop-color",   "stop-opacity", "display",        "inline-size",    "shape-inside",
    "visibility",   "font-variant", "text-anchor",
};

struct BlendName {
    std::string_view name;
    BlendMode mode;
};

constexpr std::array<BlendName, 16> kBlendNames{{
    {"normal", BlendMode::Normal},
    {"multiply", BlendMode::Multiply},
    {"screen", BlendMode::Screen},
    {"overlay", BlendMode::Overlay},
    {"soft-light", BlendMode::SoftLight},
    {"hard-light", BlendMode::HardLight},
    {"color-dodge", BlendMode::ColorDodge},
    {"color-burn", BlendMode::ColorBurn},
    {"darken", BlendMode::Darken},
    {"lighten", BlendMode::Lighten},
    {"difference", BlendMode::Difference},
    {"exclusion", BlendMode::Exclusion},
    {"hue", BlendMode::Hue},
    {"saturation", BlendMode::Saturation},
    {"color", BlendMode::Color},
    {"luminosity", BlendMode::Luminosity},
}};

// "0.5" or "50%", clamped to 0..1.
std::optional<double> ParseOpacity(std::string_view text) {
    text = TrimSvgSpace(text);
    bool percent = text.ends_with('%');
    if (percent) {
        text.remove_suffix(1);
    }
    auto value = ParseNumber(text);
    if (!value) {
        return std::nullopt;
    }
    return std::clamp(percent ? *value / 100 : *value, 0.0, 1.0);
}

std::optional<double> FontSizeKeyword(std::string_view text, double parent) {
    struct Keyword {
        std::string_view name;
        double pixels;
    };
    static constexpr std::array<Keyword, 8> kKeywords{{{"xx-small", 9},
                                                       {"x-small", 10},
                                                       {"small", 13},
                                                       {"medium", 16},
                                                       {"large", 18},
                                                       {"x-large", 24},
                                                       {"xx-large", 32},
                                                       {"xxx-large", 48}}};
    for (const auto& keyword : kKeywords) {
        if (text == keyword.name) return keyword.pixels;
    }
    if (text == "smaller") return parent / 1.2;
    if (text == "larger") return parent * 1.2;
    return std::nullopt;
}

std::optional<int> ParseFontWeight(std::string_view text, int parent) {
    if (text == "normal") return 400;
    if (text == "bold") return 700;
    if (text == "bolder") return parent < 350 ? 400 : parent < 550 ? 700 : 900;
    if (text == "lighter") return parent < 550 ? 100 : parent < 750 ? 400 : 700;
    auto value = ParseNumber(text);
    if (!value || *value < 1 || *value > 1000) {
        return std::nullopt;
    }
    return static_cast<int>(std::lround(*value));
}

}  // namespace

std::string FirstFontFamily(std::string_view list) {
    list = TrimSvgSpace(list);
    if (!list.empty() && (list.front() == '"' || list.front() == '\'')) {
        auto close = list.find(list.front(), 1);
        return std::string(
            list.substr(1, close == std::string_view::npos ? list.size() - 1 : close - 1));
    }
    auto comma = list.find(',');
    std::string_view first = TrimSvgSpace(list.substr(0, comma));
    // Unquoted family names made of several words keep one blank between them.
    std::string family;
    bool blank = false;
    for (char c : first) {
        if (IsSvgSpace(c)) {
            blank = true;
            continue;
        }
        if (blank && !family.empty()) family += ' ';
        blank = false;
        family += c;
    }
    return family;
}

std::optional<BlendMode> BlendModeNamed(std::string_view name) {
    name = TrimSvgSpace(name);
    for (const auto& row : kBlendNames) {
        if (row.name == name) return row.mode;
    }
    return std::nullopt;
}

const ComputedStyle& StyleResolver::For(pugi::xml_node element) {
    if (!element || element.type() != pugi::node_element) {
        return initial_;
    }
    auto key = static_cast<const void*>(element.internal_object());
    if (auto found = cache_.find(key); found != cache_.end()) {
        return found->second;
    }
    const ComputedStyle& parent = For(element.parent());
    ComputedStyle style = Compute(element, parent);
    return cache_.emplace(key, std::move(style)).first->second;
}

ComputedStyle StyleResolver::Compute(pugi::xml_node element, const ComputedStyle& parent) const {
    ComputedStyle style;
    // Inherited properties start from the parent's values, the others from their initial ones.
    style.fill = parent.fill;
    style.stroke = parent.stroke;
    style.fillOpacity = parent.fillOpacity;
    style.strokeOpacity = parent.strokeOpacity;
    style.evenOdd = parent.evenOdd;
    style.strokeWidth = parent.strokeWidth;
    style.color = parent.color;
    style.fontFamily = parent.fontFamily;
    style.fontSize = parent.fontSize;
    style.fontWeight = parent.fontWeight;
    style.fontStyle = parent.fontStyle;
    style.textAnchor = parent.textAnchor;
    style.declared = sheet_.Cascade(element, kPresentationAttributes);

    for (const auto& [property, rawValue] : style.declared) {
        std::string_view value = rawValue;
        if (value == "inherit") {
            // Inherited properties already hold the parent's value; the others take it here.
            if (property == "opacity") style.opacity = parent.opacity;
            if (property == "mix-blend-mode") style.blendMode = parent.blendMode;
            if (property == "clip-path") style.clipPath = parent.clipPath;
            if (property == "mask") style.mask = parent.mask;
            if (property == "stop-color") style.stopColor = parent.stopColor;
            if (property == "stop-opacity") style.stopOpacity = parent.stopOpacity;
            continue;
        }
        if (property == "fill" || property == "stroke") {
            if (auto paint = ParsePaint(value)) {
                (property == "fill" ? style.fill : style.stroke) = *paint;
            }
        } else if (property == "color") {
            if (auto color = ParseColor(value); color && !color->currentColor) {
                style.color = *color;
            }
        } else if (property == "fill-opacity") {
            style.fillOpacity = ParseOpacity(value).value_or(style.fillOpacity);
        } else if (property == "stroke-opacity") {
            style.strokeOpacity = ParseOpacity(value).value_or(style.strokeOpacity);
        } else if (property == "opacity") {
            style.opacity = ParseOpacity(value).value_or(1);
        } else if (property == "stop-opacity") {
            style.stopOpacity = ParseOpacity(value).value_or(1);
        } else if (property == "fill-rule") {
            if (value == "evenodd" || value == "nonzero") style.evenOdd = value == "evenodd";
        } else if (property == "stroke-width") {
            if (auto length = ParseLength(value); length && length->value >= 0) {
                style.strokeWidth = ToPixels(*length, 0, parent.fontSize);
            }
        } else if (property == "font-family") {
            std::string family = FirstFontFamily(value);
            if (!family.empty()) style.fontFamily = family;
        } else if (property == "font-size") {
            if (auto keyword = FontSizeKeyword(value, parent.fontSize)) {
                style.fontSize = *keyword;
            } else if (auto length = ParseLength(value); length && length->value >= 0) {
                style.fontSize = std::min(ToPixels(*length, parent.fontSize, parent.fontSize), 1e6);
            }
        } else if (property == "font-weight") {
            style.fontWeight = ParseFontWeight(value, parent.fontWeight).value_or(style.fontWeight);
        } else if (property == "font-style") {
            if (value == "normal" || value == "italic" || value.starts_with("oblique")) {
                style.fontStyle = value.starts_with("oblique") ? "oblique" : std::string(value);
            }
        } else if (property == "text-anchor") {
            if (value == "start") style.textAnchor = TextAnchor::Start;
            if (value == "middle") style.textAnchor = TextAnchor::Middle;
            if (value == "end") style.textAnchor = TextAnchor::End;
        } else if (property == "mix-blend-mode") {
            style.blendMode = BlendModeNamed(value).value_or(BlendMode::Normal);
        } else if (property == "clip-path") {
            style.clipPath = ParseLocalUrl(value).value_or("");
        } else if (property == "mask") {
            style.mask = ParseLocalUrl(value).value_or("");
        } else if (property == "shape-inside") {
            style.shapeInside = ParseLocalUrl(value).value_or("");
        } else if (property == "inline-size") {
            if (auto length = ParseLength(value); length && length->value > 0) {
                style.inlineSize = ToPixels(*length, 0, style.fontSize);
            }
        } else if (property == "stop-color") {
            if (auto color = ParseColor(value)) {
                style.stopColor = color->currentColor ? style.color : *color;
            }
        }
    }
    return style;
}

}  // namespace zm::host::svg
