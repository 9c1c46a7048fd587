#include "runtime/BlockAllocator.hpp"

#include "runtime/FaultPlan.hpp"

#include <cstdlib>

namespace zm::host {

BlockAllocator::~BlockAllocator() {
    for (void* block : live_) {
        std::free(block);
    }
}

void* BlockAllocator::Allocate(std::size_t size) {
    if (faults_.ConsumeAllocation()) {
        return nullptr;
    }
    // calloc(0) may return null; a zero-size request still gets a distinct block.
    void* block = std::calloc(size == 0 ? 1 : size, 1);
    if (block != nullptr) {
        live_.insert(block);
        ++total_;
    }
    return block;
}

bool BlockAllocator::Free(void* block) {
    if (live_.erase(block) == 0) {
        return false;
    }
    std::free(block);
    return true;
}

}  // namespace zm::host
