#pragma once

#include "document/Document.hpp"
#include "localization/Localizer.hpp"

#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>

namespace zm::host {

// What the host knows of each ruler unit: its size and the words for it.
struct MeasurementUnit {
    document::RulerUnits units;
    double pointsPerUnit;
    const char* abbreviation;  // never translated: "pt", "mm"
    const char* singularKey;   // localizable keys, English defaults "Point", "Points"
    const char* pluralKey;
};

// Every ruler unit, in the order of their codes.
std::span<const MeasurementUnit> MeasurementUnits();

// Throws HostError(ZM_ERR_BAD_ARGUMENT) for a code that names no unit.
const MeasurementUnit& UnitOf(int16_t code);
const MeasurementUnit& UnitOf(document::RulerUnits units);

// The unit a word names: its abbreviation, or its singular or plural name in English or in
// the current locale; letter case does not matter. Nothing for any other word.
std::optional<document::RulerUnits> UnitNamed(std::string_view word, const Localizer& localizer);

}  // namespace zm::host
