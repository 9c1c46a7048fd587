#include "report/HostString.hpp"

#include "report/Error.hpp"
#include "shell/SuiteSet.hpp"

#include <cstring>
#include <utility>

namespace tolvane {

HostString::~HostString() {
    if (string_ != nullptr) {
        sUnicodeStringSuite->Dispose(string_);
    }
}

HostString& HostString::operator=(HostString&& other) noexcept {
    if (this != &other) {
        HostString old(std::exchange(string_, other.Release()));
    }
    return *this;
}

HostString HostString::Empty() {
    ZMUnicodeString made = nullptr;
    zm::Check(sUnicodeStringSuite->NewEmpty(&made));
    return HostString(made);
}

HostString HostString::Copy(ZMUnicodeString source) {
    ZMUnicodeString made = nullptr;
    zm::Check(sUnicodeStringSuite->Copy(source, &made));
    return HostString(made);
}

ZMUnicodeString HostString::Release() noexcept { return std::exchange(string_, nullptr); }

void HostString::Append(ZMUnicodeString tail) {
    if (string_ == nullptr) {
        *this = Empty();
    }
    zm::Check(sUnicodeStringSuite->Append(string_, tail));
}

void HostString::Assign(ZMUnicodeString source) {
    if (string_ == nullptr) {
        *this = Empty();
    }
    zm::Check(sUnicodeStringSuite->Assign(string_, source));
}

int32_t HostString::Length() const {
    int32_t length = 0;
    zm::Check(sUnicodeStringSuite->Length(string_, &length));
    return length;
}

HostString MakeUnicodeFromBytes(const char* bytes, ZMStringEncoding encoding) {
    ZMUnicodeString made = nullptr;
    zm::Check(sUnicodeStringSuite->NewFromBytes(
        bytes, static_cast<int32_t>(std::strlen(bytes)), encoding, &made));
    return HostString(made);
}

std::string ToBytes(ZMUnicodeString string, ZMStringEncoding encoding) {
    // A first call with no room asks for the length alone.
    int32_t byteCount = 0;
    ZMErr sizing = sUnicodeStringSuite->ToBytes(string, encoding, nullptr, 0, &byteCount);
    if (sizing != ZM_ERR_NONE && sizing != ZM_ERR_BUFFER_TOO_SMALL) {
        throw zm::Error(sizing);
    }
    std::string bytes(static_cast<std::size_t>(byteCount) + 1, '\0');
    zm::Check(sUnicodeStringSuite->ToBytes(string, encoding, bytes.data(),
                                           static_cast<int32_t>(bytes.size()), &byteCount));
    bytes.resize(static_cast<std::size_t>(byteCount));
    return bytes;
}

int32_t CompareStrings(ZMUnicodeString first, ZMUnicodeString second) {
    int32_t order = 0;
    zm::Check(sUnicodeStringSuite->Compare(first, second, &order));
    return order;
}

}  // namespace tolvane
