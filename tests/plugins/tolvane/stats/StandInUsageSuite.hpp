#pragma once

#include <shell/SuiteSet.hpp>

#include <zelmora/ZMQuorvelPIPSuite.h>

#include <string>
#include <utility>
#include <vector>

namespace zm::test {

// One usage-data group as the plug-in handed it over.
struct LoggedGroup {
    std::string name;
    std::vector<std::pair<std::string, std::string>> entries;
};

// A usage-data suite that records every group and entry it is given, in order. Stands in for
// the plug-in's suite pointer while it lives.
class StandInUsageSuite {
public:
    StandInUsageSuite() : real_(tolvane::sQuorvelPipSuite) {
        groups_.clear();
        table_.IsLogging = [](int32_t* logging) -> ZMErr {
            *logging = 1;
            return ZM_ERR_NONE;
        };
        table_.BeginGroup = [](const char* name, ZMUsageGroup* group) -> ZMErr {
            groups_.push_back({name, {}});
            *group = reinterpret_cast<ZMUsageGroup>(groups_.size());
            return ZM_ERR_NONE;
        };
        table_.AddEntry = [](ZMUsageGroup group, const char* key, const char* value) -> ZMErr {
            // Only the group begun last takes entries.
            if (reinterpret_cast<std::size_t>(group) != groups_.size()) {
                return ZM_ERR_BAD_ARGUMENT;
            }
            groups_.back().entries.emplace_back(key, value);
            return ZM_ERR_NONE;
        };
        tolvane::sQuorvelPipSuite = &table_;
    }
    ~StandInUsageSuite() { tolvane::sQuorvelPipSuite = real_; }
    StandInUsageSuite(const StandInUsageSuite&) = delete;
    StandInUsageSuite& operator=(const StandInUsageSuite&) = delete;

    const std::vector<LoggedGroup>& Groups() const { return groups_; }

private:
    static inline std::vector<LoggedGroup> groups_;
    const ZMQuorvelPIPSuite* real_;
    ZMQuorvelPIPSuite table_{};
};

}  // namespace zm::test
