#pragma once

#include "runtime/HostError.hpp"
#include "suites/CountedObjects.hpp"
#include "suites/KRXArrayObject.hpp"
#include "suites/SuiteGuard.hpp"

#include <zelmora/ZMTypes.h>

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <limits>

namespace zm::host {

// A suite name as a template argument, so that each array suite's entries report their own
// suite to the guard.
template <std::size_t Length>
struct SuiteName {
    constexpr SuiteName(const char (&name)[Length]) { std::copy_n(name, Length, text); }
    char text[Length];
};

// The entries of one text-engine array suite over its own array type: Table is the suite's
// function table, Ref its array reference, Item what the array holds.
template <SuiteName Name, typename Table, typename Ref, typename Item>
class KRXArraySuite {
public:
    using Array = KRXArrayObject<Ref, Item>;

    static ZMErr ZM_API Create(Ref* array) {
        return GuardSuiteCall(Name.text, 0, [&](Runtime& runtime) {
            RequireArguments(array);
            *array = AddCounted<Ref>(runtime, Array{});
        });
    }

    static ZMErr ZM_API AddRef(Ref array) { return RetainEntry<Array>(Name.text, 1, array); }

    static ZMErr ZM_API Release(Ref array) { return ReleaseEntry<Array>(Name.text, 2, array); }

    static ZMErr ZM_API GetSize(Ref array, int32_t* size) {
        return GuardSuiteCall(Name.text, 3, [&](Runtime& runtime) {
            const Array& held = RequireArray(runtime, array);
            RequireArguments(size);
            *size = static_cast<int32_t>(held.items.size());
        });
    }

    static ZMErr ZM_API GetFirst(Ref array, Item* item) {
        return GuardSuiteCall(Name.text, 4, [&](Runtime& runtime) {
            const Array& held = RequireArray(runtime, array);
            RequireArguments(item);
            *item = At(held, 0);
        });
    }

    static ZMErr ZM_API GetLast(Ref array, Item* item) {
        return GuardSuiteCall(Name.text, 5, [&](Runtime& runtime) {
            const Array& held = RequireArray(runtime, array);
            RequireArguments(item);
            *item = At(held, static_cast<int64_t>(held.items.size()) - 1);
        });
    }

    static ZMErr ZM_API ItemAt(Ref array, int32_t index, Item* item) {
        return GuardSuiteCall(Name.text, 6, [&](Runtime& runtime) {
            const Array& held = RequireArray(runtime, array);
            RequireArguments(item);
            *item = At(held, index);
        });
    }

    static ZMErr ZM_API Append(Ref array, Item item) {
        return GuardSuiteCall(Name.text, 7, [&](Runtime& runtime) {
            Array& held = RequireArray(runtime, array);
            if (held.items.size() >=
                static_cast<std::size_t>(std::numeric_limits<int32_t>::max())) {
                throw HostError(ZM_ERR_NO_MEMORY, "an array holds at most 2^31-1 items");
            }
            if constexpr (CountedRef<Item>) {
                // Checked before the array grows, and taken after, when nothing can fail.
                runtime.objects.Require<typename ObjectOfRef<Item>::type>(item);
                held.items.push_back(item);
                runtime.objects.Retain<typename ObjectOfRef<Item>::type>(item);
            } else {
                held.items.push_back(item);
            }
        });
    }

    static constexpr Table kTable = {Create,   AddRef,  Release, GetSize,
                                     GetFirst, GetLast, ItemAt,  Append};

private:
    static Array& RequireArray(Runtime& runtime, Ref array) {
        return runtime.objects.Require<Array>(array);
    }

    // ZM_ERR_BAD_ARGUMENT outside 0..size-1, which an empty array has none of.
    static const Item& At(const Array& array, int64_t index) {
        if (index < 0 || index >= static_cast<int64_t>(array.items.size())) {
            throw HostError(ZM_ERR_BAD_ARGUMENT, "no item at that index");
        }
        return array.items[static_cast<std::size_t>(index)];
    }
};

}  // namespace zm::host
