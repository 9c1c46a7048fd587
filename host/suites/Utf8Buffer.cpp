#include "suites/Utf8Buffer.hpp"

#include "runtime/HostError.hpp"

#include <unicode/utf8.h>

#include <algorithm>
#include <cstddef>
#include <cstring>

namespace zm::host {

void CopyToBuffer(std::string_view text, char* buffer, int32_t bufferSize) {
    if (buffer == nullptr || bufferSize < 1) {
        throw HostError(ZM_ERR_BAD_ARGUMENT, "no room for the text");
    }
    auto length = static_cast<int32_t>(
        std::min<std::size_t>(text.size(), static_cast<std::size_t>(bufferSize) - 1));
    // A character whose bytes would not all fit is left out whole.
    U8_TRUNCATE_IF_INCOMPLETE(text.data(), 0, length);
    std::memcpy(buffer, text.data(), static_cast<std::size_t>(length));
    buffer[length] = '\0';
}

std::string_view RequireUtf8(const char* text) {
    if (text == nullptr) {
        throw HostError(ZM_ERR_BAD_ARGUMENT, "missing text");
    }
    std::string_view view(text);
    const auto length = static_cast<int32_t>(view.size());
    for (int32_t offset = 0; offset < length;) {
        UChar32 point = 0;
        U8_NEXT(view.data(), offset, length, point);
        if (point < 0) {
            throw HostError(ZM_ERR_BAD_ARGUMENT, "malformed UTF-8");
        }
    }
    return view;
}

}  // namespace zm::host
