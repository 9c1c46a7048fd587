#include "survey/ArtMatcher.hpp"

#include <zelmora/ZMMdMemorySuite.h>

#include "shell/FrameworkCalls.hpp"
#include "shell/SuiteSet.hpp"

namespace tolvane {

namespace {

// The matcher may outlive the survey's own hold on the memory suite (it is also used while a
// document closes), so it holds the suite only for the call.
template <typename Call>
ZMErr WithMemorySuite(Call&& call) {
    const void* table = nullptr;
    if (ZMErr error =
            sBasicSuite->AcquireSuite(ZM_MD_MEMORY_SUITE_NAME, ZM_MD_MEMORY_SUITE_VERSION, &table);
        error != ZM_ERR_NONE) {
        return error;
    }
    ZMErr error = call(*static_cast<const ZMMdMemorySuite*>(table));
    sBasicSuite->ReleaseSuite(ZM_MD_MEMORY_SUITE_NAME, ZM_MD_MEMORY_SUITE_VERSION);
    return error;
}

}  // namespace

ArtMatcher::ArtMatcher(int32_t criterionCount) {
    if (criterionCount < 1) {
        return;
    }
    void* block = nullptr;
    allocationError_ =
        AllocatePluginBlock(static_cast<size_t>(criterionCount) * sizeof(ZMMatchCriterion), &block);
    if (allocationError_ == ZM_ERR_NONE) {
        criteria_ = static_cast<ZMMatchCriterion*>(block);  // zero-filled by the host
        criterionCount_ = criterionCount;
    }
}

ArtMatcher::~ArtMatcher() {
    GiveMatchesBack();
    if (criteria_ != nullptr) {
        FreePluginBlock(criteria_);
    }
}

ZMErr ArtMatcher::Match() {
    GiveMatchesBack();
    if (allocationError_ != ZM_ERR_NONE) {
        return allocationError_;
    }
    ZMMdMemoryHandle matches = nullptr;
    int32_t count = 0;
    if (ZMErr error =
            sMatchingArtSuite->GetMatchingArt(criteria_, criterionCount_, &matches, &count);
        error != ZM_ERR_NONE) {
        return error;
    }
    matches_ = matches;
    if (matches == nullptr) {
        return ZM_ERR_NONE;  // nothing fits
    }
    void* block = nullptr;
    if (ZMErr error = WithMemorySuite([&](const ZMMdMemorySuite& memory) {
            return memory.MdMemoryHandleDeref(matches, &block);
        });
        error != ZM_ERR_NONE) {
        GiveMatchesBack();
        return error;
    }
    matchedArt_ = static_cast<const ZMArtHandle*>(block);
    matchCount_ = count;
    return ZM_ERR_NONE;
}

void ArtMatcher::GiveMatchesBack() {
    if (matches_ != nullptr) {
        ZMMdMemoryHandle matches = matches_;
        WithMemorySuite(
            [&](const ZMMdMemorySuite& memory) { return memory.DisposeHandle(matches); });
    }
    matches_ = nullptr;
    matchedArt_ = nullptr;
    matchCount_ = 0;
}

}  // namespace tolvane
