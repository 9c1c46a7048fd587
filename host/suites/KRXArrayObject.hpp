#pragma once

#include "runtime/Runtime.hpp"
#include "suites/CountedObjects.hpp"
#include "suites/TextEngineObjects.hpp"

#include <zelmora/KRXArraySuites.h>

#include <cstddef>
#include <utility>
#include <vector>

namespace zm::host {

// What a text-engine array reference names. The type is keyed by the array's own reference
// type, so an array of one suite is refused by another even where both hold 32-bit codes.
// Items that are references belong to the array: it took one reference on each, and gives
// them back when its last reference goes.
template <typename Ref, typename Item>
struct KRXArrayObject {
    std::vector<Item> items;

    void ReleaseHeld(Runtime& runtime) {
        if constexpr (CountedRef<Item>) {
            using Held = typename ObjectOfRef<Item>::type;
            std::vector<Item> held = std::move(items);
            items.clear();
            for (Item item : held) {
                // Gone already when the plug-in released it more often than it took it.
                if (runtime.objects.Find<Held>(item) != nullptr) {
                    ReleaseCounted<Held>(runtime, item);
                }
            }
        }
    }
};

// Arrays held by other arrays.
template <>
struct ObjectOfRef<KRXArrayRealRef> {
    using type = KRXArrayObject<KRXArrayRealRef, double>;
};

// A new array of count items, item i made by make(i). A reference that make returns is a new
// one, which passes to the array; when making an item fails, the array and what it holds so far
// go again.
template <typename Ref, typename Item, typename Make>
Ref AddArray(Runtime& runtime, std::size_t count, Make&& make) {
    using Array = KRXArrayObject<Ref, Item>;
    Ref array = AddCounted<Ref>(runtime, Array{});
    try {
        Array& added = runtime.objects.Require<Array>(array);
        added.items.reserve(count);
        for (std::size_t index = 0; index < count; ++index) {
            added.items.push_back(make(index));
        }
    } catch (...) {
        ReleaseCounted<Array>(runtime, array);
        throw;
    }
    return array;
}

}  // namespace zm::host
