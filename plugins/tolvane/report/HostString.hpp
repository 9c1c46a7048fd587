#pragma once

#include <zelmora/ZMUnicodeStringSuite.h>

#include <cstdint>
#include <string>

namespace tolvane {

// Owns one host Unicode string and disposes of it when it goes, so every exit path gives the
// string back. Every failing suite call throws zm::Error with the suite's code.
class HostString {
public:
    HostString() = default;
    explicit HostString(ZMUnicodeString adopted) noexcept : string_(adopted) {}
    ~HostString();
    HostString(HostString&& other) noexcept : string_(other.Release()) {}
    HostString& operator=(HostString&& other) noexcept;
    HostString(const HostString&) = delete;
    HostString& operator=(const HostString&) = delete;

    // A new empty string (not a null handle, so it can be appended to).
    static HostString Empty();
    // A new string with the text of source.
    static HostString Copy(ZMUnicodeString source);

    ZMUnicodeString Get() const noexcept { return string_; }
    // Hands the string to the caller, who disposes of it.
    ZMUnicodeString Release() noexcept;

    void Append(ZMUnicodeString tail);
    void Append(const HostString& tail) { Append(tail.Get()); }
    // This string becomes a copy of source.
    void Assign(ZMUnicodeString source);
    // In the suite's units (UTF-16 code units).
    int32_t Length() const;

private:
    ZMUnicodeString string_ = nullptr;
};

// A new host string of a NUL-terminated byte string in an encoding (ZM_ENCODING_PLATFORM or
// ZM_ENCODING_UTF8); the host is given the byte count up to the NUL.
HostString MakeUnicodeFromBytes(const char* bytes, ZMStringEncoding encoding);

// The text of a host string as bytes in an encoding.
std::string ToBytes(ZMUnicodeString string, ZMStringEncoding encoding);

// Whole-string comparison by the host's order: negative, zero or positive.
int32_t CompareStrings(ZMUnicodeString first, ZMUnicodeString second);

}  // namespace tolvane
