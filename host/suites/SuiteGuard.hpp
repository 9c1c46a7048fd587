#pragma once

#include "runtime/HostError.hpp"
#include "runtime/Runtime.hpp"

#include <zelmora/ZMTypes.h>

#include <new>

namespace zm::host {

// Every host suite entry runs its body through this guard: a failure the test's fault plan
// asks for comes first, then the body; no exception crosses into the plug-in.
template <typename Body>
ZMErr GuardSuiteCall(const char* suite, int32_t entry, Body&& body) noexcept {
    try {
        Runtime& runtime = Runtime::Current();
        if (ZMErr injected = runtime.faults.CallFailure(suite, entry); injected != ZM_ERR_NONE) {
            return injected;
        }
        body(runtime);
        return ZM_ERR_NONE;
    } catch (const HostError& error) {
        return error.Code();
    } catch (const std::bad_alloc&) {
        return ZM_ERR_NO_MEMORY;
    } catch (...) {
        return ZM_ERR_INTERNAL;
    }
}

// Throws ZM_ERR_BAD_ARGUMENT unless every pointer given is non-null.
template <typename... Pointers>
void RequireArguments(const Pointers*... pointers) {
    if (((pointers == nullptr) || ...)) {
        throw HostError(ZM_ERR_BAD_ARGUMENT, "missing argument");
    }
}

}  // namespace zm::host
