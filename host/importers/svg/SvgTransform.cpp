#include "importers/svg/SvgTransform.hpp"

#include "importers/svg/SvgLength.hpp"
#include "importers/svg/SvgNumbers.hpp"

#include <algorithm>
#include <cmath>
#include <numbers>
#include <string_view>
#include <vector>

namespace zm::host::svg {

Affine Affine::Rotate(double degrees) {
    double radians = degrees * std::numbers::pi / 180;
    double cosine = std::cos(radians);
    double sine = std::sin(radians);
    return {cosine, sine, -sine, cosine, 0, 0};
}

Affine Affine::operator*(const Affine& inner) const {
    return {a * inner.a + c * inner.b,     b * inner.a + d * inner.b,
            a * inner.c + c * inner.d,     b * inner.c + d * inner.d,
            a * inner.e + c * inner.f + e, b * inner.e + d * inner.f + f};
}

document::Point Affine::Apply(const document::Point& p) const {
    return {ClampCoordinate(a * p.x + c * p.y + e), ClampCoordinate(b * p.x + d * p.y + f)};
}

std::optional<Affine> Affine::Inverse() const {
    double determinant = a * d - b * c;
    if (!std::isfinite(determinant) || std::fabs(determinant) < 1e-12) {
        return std::nullopt;
    }
    Affine inverse{d / determinant, -b / determinant, -c / determinant, a / determinant, 0, 0};
    inverse.e = -(inverse.a * e + inverse.c * f);
    inverse.f = -(inverse.b * e + inverse.d * f);
    return inverse;
}

double Affine::LengthScale() const {
    double scale = std::sqrt(std::fabs(a * d - b * c));
    return std::isfinite(scale) ? scale : 0;
}

document::Rect TransformedBounds(const Affine& map, double left, double top, double right,
                                 double bottom) {
    document::Point corners[4] = {map.Apply({left, top}), map.Apply({right, top}),
                                  map.Apply({right, bottom}), map.Apply({left, bottom})};
    document::Rect bounds{corners[0].x, corners[0].y, corners[0].x, corners[0].y};
    for (const auto& p : corners) {
        bounds.left = std::min(bounds.left, p.x);
        bounds.right = std::max(bounds.right, p.x);
        bounds.bottom = std::min(bounds.bottom, p.y);
        bounds.top = std::max(bounds.top, p.y);
    }
    return bounds;
}

namespace {

bool IsNameChar(char c) { return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z'); }

// One "name(args)" of the list, or nothing on a syntax error.
std::optional<Affine> MakeTransform(std::string_view name, const std::vector<double>& args) {
    auto count = args.size();
    if (name == "matrix" && count == 6) {
        return Affine{args[0], args[1], args[2], args[3], args[4], args[5]};
    }
    if (name == "translate" && (count == 1 || count == 2)) {
        return Affine::Translate(args[0], count == 2 ? args[1] : 0);
    }
    if (name == "scale" && (count == 1 || count == 2)) {
        return Affine::Scale(args[0], count == 2 ? args[1] : args[0]);
    }
    if (name == "rotate" && (count == 1 || count == 3)) {
        Affine rotation = Affine::Rotate(args[0]);
        if (count == 3) {
            return Affine::Translate(args[1], args[2]) * rotation *
                   Affine::Translate(-args[1], -args[2]);
        }
        return rotation;
    }
    if (name == "skewX" && count == 1) {
        return Affine{1, 0, std::tan(args[0] * std::numbers::pi / 180), 1, 0, 0};
    }
    if (name == "skewY" && count == 1) {
        return Affine{1, std::tan(args[0] * std::numbers::pi / 180), 0, 1, 0, 0};
    }
    return std::nullopt;
}

}  // namespace

std::optional<Affine> ParseTransform(std::string_view text) {
    Affine result;
    std::size_t i = 0;
    auto skipSpace = [&] {
        while (i < text.size() && (IsSvgSpace(text[i]) || text[i] == ',')) {
            ++i;
        }
    };
    skipSpace();
    while (i < text.size()) {
        std::size_t nameStart = i;
        while (i < text.size() && IsNameChar(text[i])) {
            ++i;
        }
        std::string_view name = text.substr(nameStart, i - nameStart);
        while (i < text.size() && IsSvgSpace(text[i])) {
            ++i;
        }
        if (name.empty() || i >= text.size() || text[i] != '(') {
            return std::nullopt;
        }
        std::size_t close = text.find(')', i);
        if (close == std::string_view::npos) {
            return std::nullopt;
        }
        std::string_view argText = text.substr(i + 1, close - i - 1);
        NumberScanner scanner(argText);
        std::vector<double> args;
        while (auto value = scanner.Next()) {
            args.push_back(*value);
        }
        if (!scanner.AtEnd()) {
            return std::nullopt;
        }
        auto step = MakeTransform(name, args);
        if (!step) {
            return std::nullopt;
        }
        result = result * *step;
        i = close + 1;
        skipSpace();
    }
    return result;
}

}  // namespace zm::host::svg
