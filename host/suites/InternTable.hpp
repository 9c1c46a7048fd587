#pragma once

#include "runtime/HostError.hpp"

#include <zelmora/ZMTypes.h>

#include <functional>
#include <set>
#include <string>
#include <string_view>
#include <unordered_set>

namespace zm::host {

// Texts made into handles: the same text always gives the same handle, the address of the
// one string the table holds for it, which stays put for as long as the table lives.
class InternTable {
public:
    const std::string& Intern(std::string_view text) {
        auto found = texts_.find(text);
        if (found == texts_.end()) {
            found = texts_.emplace(text).first;
            handles_.insert(&*found);
        }
        return *found;
    }

    // The text behind a handle this table made; HostError(ZM_ERR_BAD_ARGUMENT) for any other.
    const std::string& Require(const void* handle) const {
        if (handles_.count(handle) == 0) {
            throw HostError(ZM_ERR_BAD_ARGUMENT, "unknown text handle");
        }
        return *static_cast<const std::string*>(handle);
    }

private:
    std::set<std::string, std::less<>> texts_;  // a set's elements never move
    std::unordered_set<const void*> handles_;
};

}  // namespace zm::host
