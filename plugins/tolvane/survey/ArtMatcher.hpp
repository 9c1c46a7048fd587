#pragma once

#include <zelmora/ZMArtTypes.h>
#include <zelmora/ZMMatchingArtSuite.h>
#include <zelmora/ZMTypes.h>

#include <cstdint>

namespace tolvane {

// One matching request and its answer: the criteria (in a block of the host's allocator),
// the art the host matched and the handle that holds it. Both go back to the host when the
// matcher goes, whatever path the caller leaves by.
class ArtMatcher {
public:
    // Room for criterionCount criteria, all zero (type 0, no attribute filter); none below 1
    // or when the host has no block to give.
    explicit ArtMatcher(int32_t criterionCount);
    virtual ~ArtMatcher();
    ArtMatcher(const ArtMatcher&) = delete;
    ArtMatcher& operator=(const ArtMatcher&) = delete;

    // 0 when no criteria could be had.
    int32_t CriterionCount() const { return criterionCount_; }
    // index is below CriterionCount().
    ZMMatchCriterion& Criterion(int32_t index) { return criteria_[index]; }

    // Asks the host for the current document's art that fits any of the criteria; the art of
    // an earlier request is given back first. ZM_ERR_NO_MEMORY when the criteria could not be
    // allocated; otherwise the host's code.
    ZMErr Match();

    // What the last successful Match found, in document order.
    int32_t MatchCount() const { return matchCount_; }
    // index is below MatchCount().
    ZMArtHandle MatchedArt(int32_t index) const { return matchedArt_[index]; }

    // The caller's options for the request, kept with it; the host's matching takes none.
    uint32_t options = 0;

private:
    void GiveMatchesBack();

    ZMMatchCriterion* criteria_ = nullptr;  // a block of the host's allocator
    int32_t criterionCount_ = 0;
    ZMErr allocationError_ = ZM_ERR_NONE;
    int32_t matchCount_ = 0;
    ZMMdMemoryHandle matches_ = nullptr;
    const ZMArtHandle* matchedArt_ = nullptr;  // inside matches_, which is never resized
};

}  // namespace tolvane
