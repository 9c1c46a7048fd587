#include "fonts/FontNameBytes.hpp"

#include "runtime/HostError.hpp"

#include <unicode/ucnv.h>
#include <unicode/unistr.h>

#include <array>
#include <memory>

namespace zm::host::fonts {

namespace {

struct ScriptCodePage {
    int32_t script;
    const char* encoding;
};

constexpr std::array<ScriptCodePage, 7> kCodePages = {{
    {0, "windows-1252"},
    {1, "Shift_JIS"},
    {2, "windows-950"},
    {3, "windows-949"},
    {25, "windows-936"},
    {7, "windows-1251"},
    {29, "windows-1250"},
}};

using Converter = std::unique_ptr<UConverter, decltype(&ucnv_close)>;

void Check(UErrorCode status) {
    if (status == U_MEMORY_ALLOCATION_ERROR) {
        throw HostError(ZM_ERR_NO_MEMORY, "out of memory converting a font name");
    }
    if (U_FAILURE(status)) {
        throw HostError(ZM_ERR_INTERNAL, u_errorName(status));
    }
}

std::string Encode(UConverter* converter, const icu::UnicodeString& text) {
    UErrorCode status = U_ZERO_ERROR;
    int32_t length =
        ucnv_fromUChars(converter, nullptr, 0, text.getBuffer(), text.length(), &status);
    if (status != U_BUFFER_OVERFLOW_ERROR) {
        Check(status);
    }
    std::string bytes(static_cast<std::size_t>(length), '\0');
    status = U_ZERO_ERROR;
    ucnv_fromUChars(converter, bytes.data(), length, text.getBuffer(), text.length(), &status);
    if (status != U_STRING_NOT_TERMINATED_WARNING) {
        Check(status);
    }
    return bytes;
}

}  // namespace

const char* WindowsCodePage(int32_t script) {
    for (const ScriptCodePage& codePage : kCodePages) {
        if (codePage.script == script) {
            return codePage.encoding;
        }
    }
    return "windows-1252";
}

std::string FontNameBytes(std::string_view utf8, const char* encoding, std::size_t maxBytes) {
    icu::UnicodeString text = icu::UnicodeString::fromUTF8(
        icu::StringPiece(utf8.data(), static_cast<int32_t>(utf8.size())));
    UErrorCode status = U_ZERO_ERROR;
    Converter converter(ucnv_open(encoding, &status), &ucnv_close);
    Check(status);
    ucnv_setSubstChars(converter.get(), "?", 1, &status);
    Check(status);
    std::string bytes = Encode(converter.get(), text);
    // Names are short: dropping one character at a time until the rest fits costs little.
    while (bytes.size() > maxBytes) {
        text.truncate(text.moveIndex32(text.length(), -1));
        bytes = Encode(converter.get(), text);
    }
    return bytes;
}

}  // namespace zm::host::fonts
