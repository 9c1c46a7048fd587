#include "localization/MeasurementText.hpp"

#include "localization/MeasurementUnits.hpp"
#include "localization/NumberText.hpp"
#include "runtime/HostError.hpp"

#include <unicode/uchar.h>

#include <cmath>
#include <string>

namespace zm::host {

namespace {

constexpr int32_t kDefaultMostDecimals = 3;

}  // namespace

icu::UnicodeString FormatMeasurement(double points, document::RulerUnits units, int32_t precision,
                                     const Localizer& localizer) {
    if (!std::isfinite(points)) {
        throw HostError(ZM_ERR_BAD_ARGUMENT, "a length must be a finite number");
    }
    if (precision < kDefaultMeasurementPrecision) {
        throw HostError(ZM_ERR_BAD_ARGUMENT, "no such precision");
    }
    const MeasurementUnit& unit = UnitOf(units);
    NumberText numbers(HostLocale(localizer), false);
    double value = points / unit.pointsPerUnit;
    icu::UnicodeString text = precision == kDefaultMeasurementPrecision
                                  ? numbers.Real(value, 0, kDefaultMostDecimals)
                                  : numbers.Real(value, precision, precision);
    text.append(u' ').append(icu::UnicodeString(unit.abbreviation, -1, US_INV));
    return text;
}

std::optional<double> ParseMeasurement(const icu::UnicodeString& text,
                                       document::RulerUnits defaultUnits,
                                       const Localizer& localizer) {
    icu::UnicodeString trimmed(text);
    trimmed.trim();
    // The unit word is the run of letters at the end.
    int32_t wordStart = trimmed.length();
    while (wordStart > 0 && u_isalpha(trimmed.char32At(trimmed.moveIndex32(wordStart, -1)))) {
        wordStart = trimmed.moveIndex32(wordStart, -1);
    }
    icu::UnicodeString number(trimmed, 0, wordStart);
    number.trim();
    document::RulerUnits units = defaultUnits;
    if (wordStart < trimmed.length()) {
        std::string word;
        icu::UnicodeString(trimmed, wordStart).toUTF8String(word);
        std::optional<document::RulerUnits> named = UnitNamed(word, localizer);
        if (!named) {
            return std::nullopt;
        }
        units = *named;
    }
    std::optional<double> value = NumberText(HostLocale(localizer), false).Parse(number);
    if (!value || !std::isfinite(*value)) {
        return std::nullopt;
    }
    return *value * UnitOf(units).pointsPerUnit;
}

}  // namespace zm::host
