#pragma once

#include <unicode/locid.h>
#include <unicode/unistr.h>

#include <cstdint>

namespace zm::host {

// What a locale says about itself, as ICU knows it. Failures are HostError codes.
icu::UnicodeString LocaleDisplayName(const icu::Locale& locale);  // in its own language
icu::UnicodeString DecimalSeparator(const icu::Locale& locale);
icu::UnicodeString GroupingSeparator(const icu::Locale& locale);
bool IsMetric(const icu::Locale& locale);

// A moment (seconds since 1970 UTC) in the local time zone, in the locale's medium date form
// and short time form.
icu::UnicodeString MediumDate(const icu::Locale& locale, int64_t seconds);
icu::UnicodeString ShortTime(const icu::Locale& locale, int64_t seconds);

}  // namespace zm::host
