#include "report/NumberFormatter.hpp"

#include "report/Error.hpp"
#include "shell/SuiteSet.hpp"

namespace tolvane {

NumberFormatter::NumberFormatter(int32_t options) {
    zm::Check(sStringFormatUtilsSuite->NewNumberFormat(options, &format_));
}

NumberFormatter::~NumberFormatter() { sStringFormatUtilsSuite->DisposeNumberFormat(format_); }

HostString NumberFormatter::Integer(int32_t value) const {
    HostString text = HostString::Empty();
    zm::Check(sStringFormatUtilsSuite->FormatInteger(format_, value, text.Get()));
    return text;
}

HostString NumberFormatter::Real(double value, int32_t decimals) const {
    HostString text = HostString::Empty();
    zm::Check(sStringFormatUtilsSuite->FormatReal(format_, value, decimals, text.Get()));
    return text;
}

}  // namespace tolvane
