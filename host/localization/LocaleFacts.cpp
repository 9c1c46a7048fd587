#include "localization/LocaleFacts.hpp"

#include "runtime/HostError.hpp"

#include <unicode/datefmt.h>
#include <unicode/dcfmtsym.h>
#include <unicode/ulocdata.h>

#include <memory>

namespace zm::host {

namespace {

void Check(UErrorCode status) {
    if (status == U_MEMORY_ALLOCATION_ERROR) {
        throw HostError(ZM_ERR_NO_MEMORY, "out of memory reading a locale");
    }
    if (U_FAILURE(status)) {
        throw HostError(ZM_ERR_INTERNAL, u_errorName(status));
    }
}

icu::UnicodeString Symbol(const icu::Locale& locale,
                          icu::DecimalFormatSymbols::ENumberFormatSymbol symbol) {
    UErrorCode status = U_ZERO_ERROR;
    icu::DecimalFormatSymbols symbols(locale, status);
    Check(status);
    return symbols.getSymbol(symbol);
}

icu::UnicodeString Format(std::unique_ptr<icu::DateFormat> format, int64_t seconds) {
    if (!format) {
        throw HostError(ZM_ERR_NO_MEMORY, "no date format");
    }
    icu::UnicodeString text;
    format->format(static_cast<UDate>(seconds) * 1000.0, text);
    return text;
}

}  // namespace

icu::UnicodeString LocaleDisplayName(const icu::Locale& locale) {
    icu::UnicodeString name;
    return locale.getDisplayName(locale, name);
}

icu::UnicodeString DecimalSeparator(const icu::Locale& locale) {
    return Symbol(locale, icu::DecimalFormatSymbols::kDecimalSeparatorSymbol);
}

icu::UnicodeString GroupingSeparator(const icu::Locale& locale) {
    return Symbol(locale, icu::DecimalFormatSymbols::kGroupingSeparatorSymbol);
}

bool IsMetric(const icu::Locale& locale) {
    UErrorCode status = U_ZERO_ERROR;
    UMeasurementSystem system = ulocdata_getMeasurementSystem(locale.getName(), &status);
    Check(status);
    return system != UMS_US;  // the British system measures lengths in metric units
}

icu::UnicodeString MediumDate(const icu::Locale& locale, int64_t seconds) {
    return Format(std::unique_ptr<icu::DateFormat>(
                      icu::DateFormat::createDateInstance(icu::DateFormat::kMedium, locale)),
                  seconds);
}

icu::UnicodeString ShortTime(const icu::Locale& locale, int64_t seconds) {
    return Format(std::unique_ptr<icu::DateFormat>(
                      icu::DateFormat::createTimeInstance(icu::DateFormat::kShort, locale)),
                  seconds);
}

}  // namespace zm::host
