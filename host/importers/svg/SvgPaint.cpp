#include "importers/svg/SvgPaint.hpp"

#include "importers/svg/SvgNumbers.hpp"

namespace zm::host::svg {

std::optional<std::string> ParseLocalUrl(std::string_view text, std::string_view* rest) {
    text = TrimSvgSpace(text);
    if (!text.starts_with("url(")) {
        return std::nullopt;
    }
    auto close = text.find(')');
    if (close == std::string_view::npos) {
        return std::nullopt;
    }
    std::string_view inside = TrimSvgSpace(text.substr(4, close - 4));
    if (inside.size() >= 2 && (inside.front() == '"' || inside.front() == '\'') &&
        inside.back() == inside.front()) {
        inside = TrimSvgSpace(inside.substr(1, inside.size() - 2));
    }
    if (!inside.starts_with('#') || inside.size() < 2) {
        return std::nullopt;
    }
    if (rest) {
        *rest = TrimSvgSpace(text.substr(close + 1));
    }
    return std::string(inside.substr(1));
}

std::optional<PaintValue> ParsePaint(std::string_view text) {
    text = TrimSvgSpace(text);
    PaintValue paint;
    if (text == "none") {
        return paint;
    }
    std::string_view rest;
    if (auto id = ParseLocalUrl(text, &rest)) {
        paint.kind = PaintValue::Kind::Url;
        paint.url = *id;
        if (rest.empty() || rest == "none") {
            return paint;
        }
        auto fallback = ParseColor(rest);
        if (!fallback) {
            return std::nullopt;
        }
        paint.fallbackKind =
            fallback->currentColor ? PaintValue::Kind::CurrentColor : PaintValue::Kind::Color;
        paint.fallbackColor = *fallback;
        return paint;
    }
    auto color = ParseColor(text);
    if (!color) {
        return std::nullopt;
    }
    paint.kind = color->currentColor ? PaintValue::Kind::CurrentColor : PaintValue::Kind::Color;
    paint.color = *color;
    return paint;
}

}  // namespace zm::host::svg
