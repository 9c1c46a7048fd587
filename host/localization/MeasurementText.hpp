#pragma once

#include "document/Document.hpp"
#include "localization/Localizer.hpp"

#include <unicode/unistr.h>

#include <cstdint>
#include <optional>

namespace zm::host {

// Precision that asks for the host's own measurement form.
inline constexpr int32_t kDefaultMeasurementPrecision = -1;

// A length given in points, shown in units in the current locale without grouping: the
// value, a blank and the unit's abbreviation. kDefaultMeasurementPrecision gives at most
// three decimals with trailing zeros dropped ("612 pt", "215.9 mm"); 0..15 gives exactly
// that many decimals. Throws HostError(ZM_ERR_BAD_ARGUMENT) for any other precision and for
// a value that is not finite.
icu::UnicodeString FormatMeasurement(double points, document::RulerUnits units, int32_t precision,
                                     const Localizer& localizer);

// A length as a user types it, in points: a number in the current locale's form, then,
// with or without a blank, a unit word (see UnitNamed); without one the number is in
// defaultUnits. Nothing when the text is not such a length.
std::optional<double> ParseMeasurement(const icu::UnicodeString& text,
                                       document::RulerUnits defaultUnits,
                                       const Localizer& localizer);

}  // namespace zm::host
