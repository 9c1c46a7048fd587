#pragma once

#include <zelmora/ZMTypes.h>

#include <exception>
#include <new>

namespace zm {

// A host error code thrown through plug-in code; the C entry that catches it returns the
// code unchanged.
class Error : public std::exception {
public:
    explicit Error(ZMErr code) noexcept : code_(code) {}

    ZMErr Code() const noexcept { return code_; }
    const char* what() const noexcept override { return "host error"; }

private:
    ZMErr code_;
};

// Runs body, which returns a code or throws Error, and gives the code either way: where the
// host's failures, thrown deep inside string work, become a function's result.
template <typename Body>
ZMErr CodeOf(Body&& body) {
    try {
        return body();
    } catch (const Error& error) {
        return error.Code();
    }
}

// CodeOf for code that also allocates on the C++ heap: an allocation that fails there is as
// much a want of memory as one the host refuses.
template <typename Body>
ZMErr CodeOrNoMemory(Body&& body) {
    try {
        return CodeOf(body);
    } catch (const std::bad_alloc&) {
        return ZM_ERR_NO_MEMORY;
    }
}

// Throws the code of a failed host call.
inline void Check(ZMErr code) {
    if (code != ZM_ERR_NONE) {
        throw Error(code);
    }
}

}  // namespace zm
