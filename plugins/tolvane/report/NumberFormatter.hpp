#pragma once

#include "report/HostString.hpp"

#include <zelmora/ZMStringFormatUtilsSuite.h>

#include <cstdint>

namespace tolvane {

// One number formatter of the host's string-format utilities, made with the default options
// (the locale's grouping of thousands, "1,234") and given back when it goes. Failing host
// calls throw zm::Error with the host's code.
class NumberFormatter {
public:
    NumberFormatter();
    ~NumberFormatter();
    NumberFormatter(const NumberFormatter&) = delete;
    NumberFormatter& operator=(const NumberFormatter&) = delete;

    HostString Integer(int32_t value) const;

private:
    ZMNumberFormat format_ = nullptr;
};

}  // namespace tolvane
