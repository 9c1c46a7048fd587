#pragma once

#include "registry/SuiteKey.hpp"

#include <zelmora/ZMTypes.h>

#include <cstdint>
#include <map>
#include <string>
#include <string_view>
#include <utility>

namespace zm::host {

// Failures a test asks the host to produce: the n-th block allocation from now, or every
// call of one suite entry. Lets tests reach the error paths of a plug-in for real.
class FaultPlan {
public:
    // The allocation `ordinal` allocations from now (1 = the next one) gives no memory.
    void FailAllocation(int64_t ordinal);
    // Every call of entry `entry` of suite `suite` returns code until cleared.
    void FailCall(std::string_view suite, int32_t entry, ZMErr code);
    void Clear();

    // Counts one allocation; true when it must fail.
    bool ConsumeAllocation();
    // The code an entry must return instead of running, or ZM_ERR_NONE.
    ZMErr CallFailure(std::string_view suite, int32_t entry) const;

private:
    int64_t allocationsUntilFailure_ = 0;  // 0: no allocation failure planned
    SuiteKeyMap<ZMErr> calls_;
};

}  // namespace zm::host
