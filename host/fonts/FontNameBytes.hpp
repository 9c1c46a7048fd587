#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

namespace zm::host::fonts {

// The Windows code page of a script, as ICU names it: the encoding of Windows font names
// made for that script; windows-1252 for Roman and for every script without one of its own.
const char* WindowsCodePage(int32_t script);

// A UTF-8 name in the encoding ICU calls `encoding`, a character the encoding lacks as "?",
// cut after the last whole character that fits in maxBytes bytes.
std::string FontNameBytes(std::string_view utf8, const char* encoding, std::size_t maxBytes);

}  // namespace zm::host::fonts
