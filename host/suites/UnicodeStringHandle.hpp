#pragma once

#include "runtime/HostError.hpp"

#include <zelmora/ZMTypes.h>

#include <unicode/unistr.h>

#include <string>
#include <string_view>
#include <utility>

namespace zm::host {

// A ZMUnicodeString is a heap icu::UnicodeString. The plug-in owns it from the entry that
// made it until Dispose; the host never keeps one of its own behind the plug-in's back.

// ICU reports a failed allocation by making the string bogus rather than throwing, so every
// string the host builds for a plug-in passes through here.
inline void RequireUsable(const icu::UnicodeString& text) {
    if (text.isBogus()) {
        throw HostError(ZM_ERR_NO_MEMORY, "out of memory for a Unicode string");
    }
}

// The string behind a handle the caller writes to; a null handle cannot be written, so it is
// ZM_ERR_BAD_ARGUMENT.
inline icu::UnicodeString& Deref(ZMUnicodeString handle) {
    if (handle == nullptr) {
        throw HostError(ZM_ERR_BAD_ARGUMENT, "missing Unicode string");
    }
    return *reinterpret_cast<icu::UnicodeString*>(handle);
}

// The string behind a handle the caller only reads: a null handle reads as empty.
inline const icu::UnicodeString& Read(ZMUnicodeString handle) {
    static const icu::UnicodeString empty;
    return handle == nullptr ? empty : *reinterpret_cast<const icu::UnicodeString*>(handle);
}

// A new handle the caller owns; Dispose gives it back.
inline ZMUnicodeString MakeHandle(icu::UnicodeString text) {
    RequireUsable(text);
    auto* held = new icu::UnicodeString(std::move(text));
    return reinterpret_cast<ZMUnicodeString>(held);
}

// The text of a plug-in's string as UTF-8, for host code that works in std::string.
inline std::string ToUtf8(ZMUnicodeString handle) {
    std::string text;
    Read(handle).toUTF8String(text);
    return text;
}

// Writes UTF-8 text from the host into a string the caller made.
inline void AssignUtf8(ZMUnicodeString handle, std::string_view utf8) {
    icu::UnicodeString& target = Deref(handle);
    target = icu::UnicodeString::fromUTF8(
        icu::StringPiece(utf8.data(), static_cast<int32_t>(utf8.size())));
    RequireUsable(target);
}

}  // namespace zm::host
