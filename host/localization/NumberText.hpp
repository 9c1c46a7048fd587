#pragma once

#include "localization/Localizer.hpp"

#include <unicode/locid.h>
#include <unicode/numberformatter.h>
#include <unicode/unistr.h>

#include <cstdint>
#include <optional>

namespace zm::host {

// The ICU locale of the host's current locale tag.
icu::Locale HostLocale(const Localizer& localizer);

// Numbers as text for one locale: its digits, decimal mark and, when asked for, its grouping
// of thousands ("1,234" in en-US, "1.234" in de-DE). Failures are HostError codes.
class NumberText {
public:
    NumberText(const icu::Locale& locale, bool grouping);

    icu::UnicodeString Integer(int64_t value) const;
    // Between minDecimals and maxDecimals decimals (0..15), rounded half to even.
    icu::UnicodeString Real(double value, int32_t minDecimals, int32_t maxDecimals) const;
    // The whole text as a number in this locale's form (grouping accepted either way);
    // nothing when it is not one.
    std::optional<double> Parse(const icu::UnicodeString& text) const;

    const icu::Locale& Locale() const { return locale_; }
    bool Grouping() const { return grouping_; }

private:
    icu::Locale locale_;
    bool grouping_;
    icu::number::LocalizedNumberFormatter formatter_;
};

}  // namespace zm::host
