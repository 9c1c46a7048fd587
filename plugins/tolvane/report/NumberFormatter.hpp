#pragma once

#include "report/HostString.hpp"

#include <zelmora/ZMStringFormatUtilsSuite.h>

#include <cstdint>

namespace tolvane {

// One number formatter of the host's string-format utilities, made with the given options
// (by default the locale's grouping of thousands, "1,234"; ZM_NUMBER_FORMAT_NO_GROUPING for
// the plain form, "1234") and given back when it goes. Failing host calls throw zm::Error
// with the host's code.
class NumberFormatter {
public:
    explicit NumberFormatter(int32_t options = ZM_NUMBER_FORMAT_DEFAULT);
    ~NumberFormatter();
    NumberFormatter(const NumberFormatter&) = delete;
    NumberFormatter& operator=(const NumberFormatter&) = delete;

    HostString Integer(int32_t value) const;
    // Exactly `decimals` decimals.
    HostString Real(double value, int32_t decimals) const;

private:
    ZMNumberFormat format_ = nullptr;
};

}  // namespace tolvane
