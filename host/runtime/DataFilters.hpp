#pragma once

#include "runtime/DataFilter.hpp"

#include <cstddef>
#include <memory>
#include <unordered_map>

namespace zm::host {

class BlockAllocator;

// The data filters plug-ins hold. A filter's handle is a block of the plug-in framework, so a
// plug-in may give back a filter it never linked with the framework's FreeBlock; a filter goes
// whenever its block goes. What is left when the registry goes goes with it, and a writing
// filter still linked then leaves no file behind.
class DataFilters {
public:
    explicit DataFilters(BlockAllocator& blocks) : blocks_(blocks) {}
    ~DataFilters();
    DataFilters(const DataFilters&) = delete;
    DataFilters& operator=(const DataFilters&) = delete;

    // The new filter's handle. Throws HostError(ZM_ERR_NO_MEMORY) when there is no block.
    void* Add(std::unique_ptr<DataFilter> filter);
    // Null for a handle that names no filter (any more).
    DataFilter* Find(const void* handle) const;
    // Throws HostError(ZM_ERR_BAD_ARGUMENT) for a handle Find refuses.
    DataFilter& Require(const void* handle) const;
    // Gives the filter's block back; the filter goes with it.
    void Dispose(void* handle);
    std::size_t Count() const { return filters_.size(); }

private:
    BlockAllocator& blocks_;
    std::unordered_map<const void*, std::unique_ptr<DataFilter>> filters_;
};

}  // namespace zm::host
