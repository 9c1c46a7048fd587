#pragma once

#include <zelmora/ZMQuorvelPIPSuite.h>
#include <zelmora/ZMTypes.h>

#include <cstdint>

namespace tolvane {

// Begins a usage-data group through the host's usage-data suite (its entry 1).
ZMErr BeginUsageGroup(const char* name, ZMUsageGroup& group);

// Adds one key and value text to the group (the suite's entry 2).
ZMErr AddUsageEntry(ZMUsageGroup group, const char* key, const char* value);

// The value as "%d" writes it: a counter past 2^31 - 1 reads as a negative number, so an
// overflowed point total (all ones) is logged as "-1".
ZMErr AddUsageNumber(ZMUsageGroup group, const char* key, uint32_t value);

}  // namespace tolvane
