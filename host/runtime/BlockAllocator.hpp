#pragma once

#include <cstddef>
#include <unordered_set>

namespace zm::host {

class FaultPlan;

// Zero-filled blocks handed to plug-ins. The host owns them: what a plug-in does not give
// back is freed when the allocator goes.
class BlockAllocator {
public:
    explicit BlockAllocator(FaultPlan& faults) : faults_(faults) {}
    ~BlockAllocator();
    BlockAllocator(const BlockAllocator&) = delete;
    BlockAllocator& operator=(const BlockAllocator&) = delete;

    // Null when there is no memory, including a failure the fault plan asks for.
    void* Allocate(std::size_t size);
    // False for a pointer this allocator did not hand out (nothing is freed then).
    bool Free(void* block);
    std::size_t LiveBlocks() const { return live_.size(); }
    std::size_t TotalAllocations() const { return total_; }

private:
    FaultPlan& faults_;
    std::unordered_set<void*> live_;
    std::size_t total_ = 0;
};

}  // namespace zm::host
