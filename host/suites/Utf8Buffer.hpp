#pragma once

#include <cstdint>
#include <string_view>

namespace zm::host {

// Text into a caller's buffer of bufferSize bytes with a closing NUL; text that does not fit
// is cut after the last whole character that does. A null buffer or bufferSize below 1 is
// HostError(ZM_ERR_BAD_ARGUMENT).
void CopyToBuffer(std::string_view text, char* buffer, int32_t bufferSize);

// Throws HostError(ZM_ERR_BAD_ARGUMENT) for a null pointer or text that is not well-formed
// UTF-8.
std::string_view RequireUtf8(const char* text);

}  // namespace zm::host
