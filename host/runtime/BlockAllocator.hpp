#pragma once

#include <cstddef>
#include <functional>
#include <unordered_map>
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

    // Runs once, with the block, when the block is given back through Free, so that a host
    // object whose handle is a block goes when a plug-in frees the block. Must not throw. Not
    // run when the allocator itself goes.
    using ReleaseHook = std::function<void(const void* block)>;

    // Null when there is no memory, including a failure the fault plan asks for.
    void* Allocate(std::size_t size, ReleaseHook onFree = {});
    // False for a pointer this allocator did not hand out (nothing is freed then).
    bool Free(void* block);
    std::size_t LiveBlocks() const { return live_.size(); }
    std::size_t TotalAllocations() const { return total_; }

private:
    FaultPlan& faults_;
    std::unordered_set<void*> live_;
    std::unordered_map<void*, ReleaseHook> hooks_;
    std::size_t total_ = 0;
};

}  // namespace zm::host
