#pragma once

#include <zelmora/ZMBasicSuite.h>

namespace zm::host {

// The table every message carries. Its entries act on Runtime::Current().
const ZMBasicSuite& HostBasicSuite();

inline constexpr const char* kBasicSuiteName = "Basic Suite";  // for fault plans

}  // namespace zm::host
