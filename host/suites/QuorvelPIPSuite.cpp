#include "suites/SuiteRegistrations.hpp"

#include "suites/SuiteGuard.hpp"
#include "suites/Utf8Buffer.hpp"

#include <zelmora/ZMQuorvelPIPSuite.h>

#include <cstdint>

namespace zm::host {

namespace {

constexpr const char* kSuite = ZM_QUORVEL_PIP_SUITE_NAME;

// A group handle is the log's group number, which never comes round again, so a handle kept
// past its group can be told from the current one even when both would share an address.
ZMUsageGroup HandleOf(UsageLog::GroupId group) {
    return reinterpret_cast<ZMUsageGroup>(static_cast<uintptr_t>(group));
}

UsageLog::GroupId GroupOf(ZMUsageGroup handle) {
    return static_cast<UsageLog::GroupId>(reinterpret_cast<uintptr_t>(handle));
}

ZMErr ZM_API IsLogging(int32_t* logging) {
    return GuardSuiteCall(kSuite, 0, [&](Runtime& runtime) {
        RequireArguments(logging);
        *logging = runtime.usage.IsLogging() ? 1 : 0;
    });
}

ZMErr ZM_API BeginGroup(const char* name, ZMUsageGroup* group) {
    return GuardSuiteCall(kSuite, 1, [&](Runtime& runtime) {
        RequireArguments(group);
        *group = HandleOf(runtime.usage.BeginGroup(RequireUtf8(name)));
    });
}

ZMErr ZM_API AddEntry(ZMUsageGroup group, const char* key, const char* value) {
    return GuardSuiteCall(kSuite, 2, [&](Runtime& runtime) {
        runtime.usage.AddEntry(GroupOf(group), RequireUtf8(key), RequireUtf8(value));
    });
}

ZMQuorvelPIPSuite MakeTable() {
    ZMQuorvelPIPSuite table{};
    table.IsLogging = IsLogging;
    table.BeginGroup = BeginGroup;
    table.AddEntry = AddEntry;
    return table;
}

const ZMQuorvelPIPSuite kTable = MakeTable();

}  // namespace

void RegisterQuorvelPIPSuite(SuiteRegistry& registry) {
    registry.Add(ZM_QUORVEL_PIP_SUITE_NAME, ZM_QUORVEL_PIP_SUITE_VERSION, &kTable);
}

}  // namespace zm::host
