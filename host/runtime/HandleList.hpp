#pragma once

#include "runtime/HostError.hpp"

#include <zelmora/ZMTypes.h>

#include <algorithm>
#include <memory>
#include <vector>

namespace zm::host {

// Objects a plug-in holds by opaque handle: the handle is the object's address, which stays
// put while the object lives. RemovePlugin needs a `plugin` field in Item naming its owner.
template <typename Item, typename Handle>
class HandleList {
public:
    Item& Add(Item item) {
        items_.push_back(std::make_unique<Item>(std::move(item)));
        return *items_.back();
    }

    // Null for a handle this list did not make (or whose object is gone).
    Item* Find(Handle handle) {
        for (auto& item : items_) {
            if (HandleOf(*item) == handle) {
                return item.get();
            }
        }
        return nullptr;
    }

    // Throws HostError(ZM_ERR_BAD_ARGUMENT) for a handle this list did not make.
    Item& Require(Handle handle) {
        Item* item = Find(handle);
        if (item == nullptr) {
            throw HostError(ZM_ERR_BAD_ARGUMENT, "unknown handle");
        }
        return *item;
    }

    Handle HandleOf(const Item& item) const {
        return reinterpret_cast<Handle>(const_cast<Item*>(&item));
    }

    // Throws HostError(ZM_ERR_BAD_ARGUMENT) for a handle this list did not make.
    void Remove(Handle handle) {
        Require(handle);
        std::erase_if(items_, [&](const auto& item) { return HandleOf(*item) == handle; });
    }

    void RemovePlugin(ZMPluginRef plugin) {
        std::erase_if(items_, [plugin](const auto& item) { return item->plugin == plugin; });
    }

    const std::vector<std::unique_ptr<Item>>& All() const { return items_; }

private:
    std::vector<std::unique_ptr<Item>> items_;
};

}  // namespace zm::host
