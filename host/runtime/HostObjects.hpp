#pragma once

#include "runtime/HostError.hpp"

#include <zelmora/ZMTypes.h>

#include <cstddef>
#include <cstdint>
#include <memory>
#include <typeindex>
#include <unordered_map>
#include <vector>

namespace zm::host {

// Objects the host makes for a plug-in and the plug-in gives back: file paths, artboard lists,
// style parsers, dictionaries. A handle is the object's address. The store remembers each
// object's type, so a handle of one kind is refused where another kind is expected, and a
// handle given back twice is refused the second time. Every object starts with one reference;
// it goes when its last reference is released.
class HostObjects {
public:
    template <typename Item>
    Item& Add(std::unique_ptr<Item> item) {
        Item& added = *item;
        entries_.emplace(static_cast<const void*>(&added),
                         Entry{typeid(Item), std::shared_ptr<void>(std::move(item)), 1});
        return added;
    }

    // Null for a handle the store did not make, or made for another type.
    template <typename Item>
    Item* Find(const void* handle) const {
        auto found = entries_.find(handle);
        if (found == entries_.end() || found->second.type != typeid(Item)) {
            return nullptr;
        }
        return static_cast<Item*>(found->second.object.get());
    }

    // Throws HostError(ZM_ERR_BAD_ARGUMENT) for a null handle or one Find refuses.
    template <typename Item>
    Item& Require(const void* handle) const {
        Item* item = Find<Item>(handle);
        if (item == nullptr) {
            throw HostError(ZM_ERR_BAD_ARGUMENT, "unknown handle");
        }
        return *item;
    }

    template <typename Item>
    void Retain(const void* handle) {
        Require<Item>(handle);
        ++entries_.at(handle).references;
    }

    // Drops one reference; the object goes with its last one.
    template <typename Item>
    void Release(const void* handle) {
        Require<Item>(handle);
        auto found = entries_.find(handle);
        if (--found->second.references == 0) {
            entries_.erase(found);
        }
    }

    // The objects of one type, in no particular order.
    template <typename Item>
    std::vector<Item*> All() const {
        std::vector<Item*> items;
        for (const auto& [handle, entry] : entries_) {
            if (entry.type == typeid(Item)) {
                items.push_back(static_cast<Item*>(entry.object.get()));
            }
        }
        return items;
    }

    template <typename Item>
    std::size_t Count() const {
        return All<Item>().size();
    }

    // Every object held, of any type.
    std::size_t Size() const { return entries_.size(); }

    // References held on one object; 0 for a handle the store does not hold.
    int32_t References(const void* handle) const {
        auto found = entries_.find(handle);
        return found == entries_.end() ? 0 : found->second.references;
    }

private:
    struct Entry {
        std::type_index type;
        std::shared_ptr<void> object;  // shared only to erase the type; never shared
        int32_t references;
    };
    std::unordered_map<const void*, Entry> entries_;
};

}  // namespace zm::host
