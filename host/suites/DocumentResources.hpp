#pragma once

#include "runtime/HostError.hpp"

#include <zelmora/ZMTypes.h>

#include <cstdint>
#include <limits>
#include <memory>
#include <vector>

namespace zm::host {

// A document's resources (swatches, gradients, patterns, brushes) are handed out by address.

// The count of a resource list as an entry reports it.
template <typename Resource>
int32_t CountResources(const std::vector<std::unique_ptr<Resource>>& resources) {
    if (resources.size() > static_cast<std::size_t>(std::numeric_limits<int32_t>::max())) {
        throw HostError(ZM_ERR_INTERNAL, "too many resources to count");
    }
    return static_cast<int32_t>(resources.size());
}

// The handle of the resource at index; HostError(ZM_ERR_BAD_ARGUMENT) outside the list.
template <typename Handle, typename Resource>
Handle NthResource(const std::vector<std::unique_ptr<Resource>>& resources, int32_t index) {
    if (index < 0 || static_cast<std::size_t>(index) >= resources.size()) {
        throw HostError(ZM_ERR_BAD_ARGUMENT, "resource index out of range");
    }
    return reinterpret_cast<Handle>(resources[static_cast<std::size_t>(index)].get());
}

// The resource behind a handle; HostError(ZM_ERR_BAD_ARGUMENT) for a null handle or one of
// no resource in the list.
template <typename Resource, typename Handle>
Resource& RequireResource(const std::vector<std::unique_ptr<Resource>>& resources, Handle handle) {
    if (handle != nullptr) {
        for (const auto& resource : resources) {
            if (reinterpret_cast<Handle>(resource.get()) == handle) {
                return *resource;
            }
        }
    }
    throw HostError(ZM_ERR_BAD_ARGUMENT, "unknown resource handle");
}

}  // namespace zm::host
