#include "stats/UsageEntries.hpp"

#include "shell/SuiteSet.hpp"

#include <cstdio>

namespace tolvane {

namespace {

// Room for the decimal text of any 32-bit value, its sign and the NUL.
constexpr std::size_t kNumberBufferSize = 12;

}  // namespace

ZMErr BeginUsageGroup(const char* name, ZMUsageGroup& group) {
    return sQuorvelPipSuite->BeginGroup(name, &group);
}

ZMErr AddUsageEntry(ZMUsageGroup group, const char* key, const char* value) {
    return sQuorvelPipSuite->AddEntry(group, key, value);
}

ZMErr AddUsageNumber(ZMUsageGroup group, const char* key, uint32_t value) {
    char text[kNumberBufferSize] = {};
    std::snprintf(text, sizeof text, "%d", static_cast<int32_t>(value));
    return AddUsageEntry(group, key, text);
}

}  // namespace tolvane
