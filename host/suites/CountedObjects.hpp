#pragma once

#include "runtime/Runtime.hpp"
#include "suites/SuiteGuard.hpp"

#include <zelmora/ZMTypes.h>

#include <memory>
#include <utility>

namespace zm::host {

// The counted object type a reference type names, for the references that one object holds
// on others (an array of fonts holds its fonts). Each object header adds its own.
template <typename Ref>
struct ObjectOfRef {};

// Whether a value is a reference to a counted object rather than a plain value.
template <typename Item>
concept CountedRef = requires {
    typename ObjectOfRef<Item>::type;
};

// A new object in Runtime::objects with one reference, the caller's; its handle is its
// address.
template <typename Ref, typename Object>
Ref AddCounted(Runtime& runtime, Object object) {
    Object& added = runtime.objects.Add(std::make_unique<Object>(std::move(object)));
    return reinterpret_cast<Ref>(&added);
}

// Drops one reference. An object that holds references of its own (it has ReleaseHeld) gives
// them back when its last reference goes, before it goes itself.
template <typename Object>
void ReleaseCounted(Runtime& runtime, const void* handle) {
    Object& object = runtime.objects.Require<Object>(handle);
    if constexpr (requires { object.ReleaseHeld(runtime); }) {
        if (runtime.objects.References(handle) == 1) {
            object.ReleaseHeld(runtime);
        }
    }
    runtime.objects.Release<Object>(handle);
}

// The AddRef and Release entries every counted object's suite has.
template <typename Object, typename Ref>
ZMErr RetainEntry(const char* suite, int32_t entry, Ref ref) {
    return GuardSuiteCall(suite, entry,
                          [&](Runtime& runtime) { runtime.objects.Retain<Object>(ref); });
}

template <typename Object, typename Ref>
ZMErr ReleaseEntry(const char* suite, int32_t entry, Ref ref) {
    return GuardSuiteCall(suite, entry,
                          [&](Runtime& runtime) { ReleaseCounted<Object>(runtime, ref); });
}

}  // namespace zm::host
