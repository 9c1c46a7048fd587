#include "runtime/BlockAllocator.hpp"

#include "runtime/FaultPlan.hpp"

#include <cstdlib>
#include <utility>

namespace zm::host {

BlockAllocator::~BlockAllocator() {
    for (void* block : live_) {
        std::free(block);
    }
}

void* BlockAllocator::Allocate(std::size_t size, ReleaseHook onFree) {
    if (faults_.ConsumeAllocation()) {
        return nullptr;
    }
    // calloc(0) may return null; a zero-size request still gets a distinct block.
    void* block = std::calloc(size == 0 ? 1 : size, 1);
    if (block == nullptr) {
        return nullptr;
    }
    try {
        live_.insert(block);
        if (onFree) {
            hooks_.emplace(block, std::move(onFree));
        }
    } catch (...) {
        live_.erase(block);
        std::free(block);
        throw;
    }
    ++total_;
    return block;
}

bool BlockAllocator::Free(void* block) {
    if (live_.erase(block) == 0) {
        return false;
    }
    if (auto hook = hooks_.extract(block); !hook.empty()) {
        hook.mapped()(block);
    }
    std::free(block);
    return true;
}

}  // namespace zm::host
