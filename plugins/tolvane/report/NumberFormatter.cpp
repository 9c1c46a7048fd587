#include "report/NumberFormatter.hpp"

#include "report/Error.hpp"
#include "shell/SuiteSet.hpp"

namespace tolvane {

NumberFormatter::NumberFormatter() {
    zm::Check(sStringFormatUtilsSuite->NewNumberFormat(ZM_NUMBER_FORMAT_DEFAULT, &format_));
}

NumberFormatter::~NumberFormatter() { sStringFormatUtilsSuite->DisposeNumberFormat(format_); }

HostString NumberFormatter::Integer(int32_t value) const {
    HostString text = HostString::Empty();
    zm::Check(sStringFormatUtilsSuite->FormatInteger(format_, value, text.Get()));
    return text;
}

}  // namespace tolvane
