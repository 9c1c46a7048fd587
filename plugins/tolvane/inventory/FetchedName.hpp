#pragma once

#include "report/Error.hpp"
#include "report/HostString.hpp"

#include <zelmora/ZMTypes.h>

namespace tolvane {

// The name a host entry writes into a string the caller made (GetPatternName(pattern,
// name)), as a new string. Throws zm::Error with the entry's code.
template <typename Handle>
HostString FetchName(ZMErr(ZM_API* entry)(Handle, ZMUnicodeString), Handle handle) {
    HostString name = HostString::Empty();
    zm::Check(entry(handle, name.Get()));
    return name;
}

}  // namespace tolvane
