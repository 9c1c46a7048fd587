#include "importers/svg/SvgLength.hpp"

#include "importers/svg/SvgNumbers.hpp"

#include <array>
#include <cmath>
#include <string>
#include <utility>

namespace zm::host::svg {

namespace {

struct UnitName {
    std::string_view name;
    LengthUnit unit;
};

constexpr std::array<UnitName, 9> kUnitNames{{
    {"px", LengthUnit::Px},
    {"pt", LengthUnit::Pt},
    {"pc", LengthUnit::Pc},
    {"in", LengthUnit::In},
    {"mm", LengthUnit::Mm},
    {"cm", LengthUnit::Cm},
    {"em", LengthUnit::Em},
    {"ex", LengthUnit::Ex},
    {"%", LengthUnit::Percent},
}};

}  // namespace

std::optional<Length> ParseLength(std::string_view text) {
    text = TrimSvgSpace(text);
    NumberScanner scanner(text);
    auto value = scanner.Next();
    if (!value) {
        return std::nullopt;
    }
    std::string_view unitText = text.substr(scanner.Position());
    if (unitText.empty()) {
        return Length{*value, LengthUnit::None};
    }
    for (const auto& unit : kUnitNames) {
        if (AsciiLower(unitText) == unit.name) {
            return Length{*value, unit.unit};
        }
    }
    return std::nullopt;
}

double ToPixels(const Length& length, double percentBase, double fontSize) {
    double value = length.value;
    switch (length.unit) {
        case LengthUnit::None:
        case LengthUnit::Px:
            break;
        case LengthUnit::Pt:
            value = value / kPointsPerPixel;
            break;
        case LengthUnit::Pc:
            value = value * 16;  // 12 pt
            break;
        case LengthUnit::In:
            value = value * 96;
            break;
        case LengthUnit::Mm:
            value = value * 96 / 25.4;
            break;
        case LengthUnit::Cm:
            value = value * 96 / 2.54;
            break;
        case LengthUnit::Em:
            value = value * fontSize;
            break;
        case LengthUnit::Ex:
            value = value * fontSize / 2;
            break;
        case LengthUnit::Percent:
            value = value * percentBase / 100;
            break;
    }
    return ClampCoordinate(value);
}

std::optional<document::RulerUnits> RulerUnitsOf(LengthUnit unit) {
    using document::RulerUnits;
    switch (unit) {
        case LengthUnit::None:
        case LengthUnit::Px:
            return RulerUnits::Pixels;
        case LengthUnit::Pt:
            return RulerUnits::Points;
        case LengthUnit::Pc:
            return RulerUnits::Picas;
        case LengthUnit::In:
            return RulerUnits::Inches;
        case LengthUnit::Mm:
            return RulerUnits::Millimeters;
        case LengthUnit::Cm:
            return RulerUnits::Centimeters;
        default:
            return std::nullopt;
    }
}

std::optional<document::RulerUnits> RulerUnitsNamed(std::string_view name) {
    name = TrimSvgSpace(name);
    for (const auto& unit : kUnitNames) {
        if (AsciiLower(name) == unit.name) {
            return RulerUnitsOf(unit.unit);
        }
    }
    return std::nullopt;
}

double ClampCoordinate(double value) {
    if (std::isnan(value)) {
        return 0;
    }
    if (value > kCoordinateLimit) {
        return kCoordinateLimit;
    }
    if (value < -kCoordinateLimit) {
        return -kCoordinateLimit;
    }
    return value;
}

}  // namespace zm::host::svg
