#include "runtime/FaultPlan.hpp"

namespace zm::host {

void FaultPlan::FailAllocation(int64_t ordinal) { allocationsUntilFailure_ = ordinal; }

void FaultPlan::FailCall(std::string_view suite, int32_t entry, ZMErr code) {
    calls_[{std::string(suite), entry}] = code;
}

void FaultPlan::Clear() {
    allocationsUntilFailure_ = 0;
    calls_.clear();
}

bool FaultPlan::ConsumeAllocation() {
    if (allocationsUntilFailure_ <= 0) {
        return false;
    }
    return --allocationsUntilFailure_ == 0;
}

ZMErr FaultPlan::CallFailure(std::string_view suite, int32_t entry) const {
    if (calls_.empty()) {
        return ZM_ERR_NONE;  // the usual case: every guarded suite call passes through here
    }
    auto it = calls_.find(SuiteKey(suite, entry));
    return it == calls_.end() ? ZM_ERR_NONE : it->second;
}

}  // namespace zm::host
