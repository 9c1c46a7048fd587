#include "localization/MeasurementUnits.hpp"

#include "runtime/HostError.hpp"

#include <unicode/unistr.h>

#include <array>

namespace zm::host {

namespace {

using document::RulerUnits;

// A pixel is a CSS pixel, 0.75 pt; a pica is 12 pt; an inch is 72 pt and 25.4 mm.
constexpr std::array<MeasurementUnit, 6> kUnits = {{
    {RulerUnits::Points, 1.0, "pt", "$$$/Zelmora/Units/Point=Point",
     "$$$/Zelmora/Units/Points=Points"},
    {RulerUnits::Pixels, 0.75, "px", "$$$/Zelmora/Units/Pixel=Pixel",
     "$$$/Zelmora/Units/Pixels=Pixels"},
    {RulerUnits::Inches, 72.0, "in", "$$$/Zelmora/Units/Inch=Inch",
     "$$$/Zelmora/Units/Inches=Inches"},
    {RulerUnits::Millimeters, 72.0 / 25.4, "mm", "$$$/Zelmora/Units/Millimeter=Millimeter",
     "$$$/Zelmora/Units/Millimeters=Millimeters"},
    {RulerUnits::Centimeters, 720.0 / 25.4, "cm", "$$$/Zelmora/Units/Centimeter=Centimeter",
     "$$$/Zelmora/Units/Centimeters=Centimeters"},
    {RulerUnits::Picas, 12.0, "pc", "$$$/Zelmora/Units/Pica=Pica",
     "$$$/Zelmora/Units/Picas=Picas"},
}};

// The English text after the key's "=".
std::string_view DefaultText(const char* key) {
    std::string_view text(key);
    return text.substr(text.find('=') + 1);
}

bool SameWord(std::string_view first, std::string_view second) {
    auto fold = [](std::string_view word) {
        return icu::UnicodeString::fromUTF8(
                   icu::StringPiece(word.data(), static_cast<int32_t>(word.size())))
            .foldCase();
    };
    return fold(first) == fold(second);
}

}  // namespace

std::span<const MeasurementUnit> MeasurementUnits() { return kUnits; }

const MeasurementUnit& UnitOf(int16_t code) {
    if (code < 0 || static_cast<std::size_t>(code) >= kUnits.size()) {
        throw HostError(ZM_ERR_BAD_ARGUMENT, "no such ruler units");
    }
    return kUnits[static_cast<std::size_t>(code)];
}

const MeasurementUnit& UnitOf(RulerUnits units) { return UnitOf(static_cast<int16_t>(units)); }

std::optional<RulerUnits> UnitNamed(std::string_view word, const Localizer& localizer) {
    for (const MeasurementUnit& unit : kUnits) {
        for (const char* key : {unit.singularKey, unit.pluralKey}) {
            if (SameWord(word, DefaultText(key)) || SameWord(word, localizer.Localize(key))) {
                return unit.units;
            }
        }
        if (SameWord(word, unit.abbreviation)) {
            return unit.units;
        }
    }
    return std::nullopt;
}

}  // namespace zm::host
