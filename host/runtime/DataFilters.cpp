#include "runtime/DataFilters.hpp"

#include "runtime/BlockAllocator.hpp"
#include "runtime/HostError.hpp"

#include <utility>

namespace zm::host {

DataFilters::~DataFilters() {
    // Taken out first, so that the blocks' release hooks find nothing left to forget; the
    // filters then go with `remaining`.
    auto remaining = std::move(filters_);
    filters_.clear();
    for (auto& [handle, filter] : remaining) {
        blocks_.Free(const_cast<void*>(handle));
    }
}

void* DataFilters::Add(std::unique_ptr<DataFilter> filter) {
    // Only the block's address is used; its one byte is never read.
    void* block = blocks_.Allocate(1, [this](const void* freed) { filters_.erase(freed); });
    if (block == nullptr) {
        throw HostError(ZM_ERR_NO_MEMORY, "no block for a data filter");
    }
    try {
        filters_.emplace(block, std::move(filter));
    } catch (...) {
        blocks_.Free(block);
        throw;
    }
    return block;
}

DataFilter* DataFilters::Find(const void* handle) const {
    auto found = filters_.find(handle);
    return found == filters_.end() ? nullptr : found->second.get();
}

DataFilter& DataFilters::Require(const void* handle) const {
    DataFilter* filter = Find(handle);
    if (filter == nullptr) {
        throw HostError(ZM_ERR_BAD_ARGUMENT, "not a data filter of this host");
    }
    return *filter;
}

void DataFilters::Dispose(void* handle) {
    Require(handle);
    blocks_.Free(handle);
}

}  // namespace zm::host
