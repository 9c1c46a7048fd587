#include "localization/NumberText.hpp"

#include "runtime/HostError.hpp"

#include <unicode/fmtable.h>
#include <unicode/numfmt.h>
#include <unicode/parsepos.h>

#include <memory>
#include <string>

namespace zm::host {

namespace {

constexpr int32_t kMostDecimals = 15;  // what a double holds

void Check(UErrorCode status) {
    if (status == U_MEMORY_ALLOCATION_ERROR) {
        throw HostError(ZM_ERR_NO_MEMORY, "out of memory formatting a number");
    }
    if (U_FAILURE(status)) {
        throw HostError(ZM_ERR_INTERNAL, u_errorName(status));
    }
}

}  // namespace

icu::Locale HostLocale(const Localizer& localizer) {
    const std::string& tag = localizer.Locale();
    UErrorCode status = U_ZERO_ERROR;
    icu::Locale locale = icu::Locale::forLanguageTag(
        icu::StringPiece(tag.data(), static_cast<int32_t>(tag.size())), status);
    Check(status);
    return locale;
}

NumberText::NumberText(const icu::Locale& locale, bool grouping)
    : locale_(locale),
      grouping_(grouping),
      // The locale's own grouping rule: most group every three digits from four on.
      formatter_(icu::number::NumberFormatter::withLocale(locale).grouping(
          grouping ? UNUM_GROUPING_AUTO : UNUM_GROUPING_OFF)) {}

icu::UnicodeString NumberText::Integer(int64_t value) const {
    UErrorCode status = U_ZERO_ERROR;
    icu::UnicodeString text = formatter_.precision(icu::number::Precision::integer())
                                  .formatInt(value, status)
                                  .toString(status);
    Check(status);
    return text;
}

icu::UnicodeString NumberText::Real(double value, int32_t minDecimals, int32_t maxDecimals) const {
    if (minDecimals < 0 || maxDecimals < minDecimals || maxDecimals > kMostDecimals) {
        throw HostError(ZM_ERR_BAD_ARGUMENT, "decimals out of range");
    }
    UErrorCode status = U_ZERO_ERROR;
    icu::UnicodeString text =
        formatter_.precision(icu::number::Precision::minMaxFraction(minDecimals, maxDecimals))
            .formatDouble(value, status)
            .toString(status);
    Check(status);
    return text;
}

std::optional<double> NumberText::Parse(const icu::UnicodeString& text) const {
    UErrorCode status = U_ZERO_ERROR;
    std::unique_ptr<icu::NumberFormat> parser(icu::NumberFormat::createInstance(locale_, status));
    Check(status);
    icu::Formattable number;
    icu::ParsePosition position(0);
    parser->parse(text, number, position);
    if (text.isEmpty() || position.getErrorIndex() >= 0 || position.getIndex() != text.length()) {
        return std::nullopt;
    }
    status = U_ZERO_ERROR;
    double value = number.getDouble(status);
    if (U_FAILURE(status)) {
        return std::nullopt;
    }
    return value;
}

}  // namespace zm::host
