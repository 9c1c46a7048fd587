#include "suites/SuiteRegistrations.hpp"

#include "runtime/HostError.hpp"
#include "runtime/Runtime.hpp"
#include "suites/SuiteGuard.hpp"
#include "suites/UnicodeStringHandle.hpp"

#include <zelmora/ZMUnicodeStringSuite.h>

#include <unicode/ucnv.h>
#include <unicode/utf8.h>

#include <array>
#include <cstddef>
#include <cstring>
#include <memory>
#include <string>
#include <string_view>

namespace zm::host {

namespace {

// Entry indexes as the table orders them; the fault plan names entries by these.
constexpr int32_t kNewEmpty = 0;
constexpr int32_t kNewFromBytes = 1;
constexpr int32_t kNewFromLocalizableKey = 2;
constexpr int32_t kDispose = 3;
constexpr int32_t kCopy = 4;
constexpr int32_t kAssign = 5;
constexpr int32_t kAppend = 6;
constexpr int32_t kLength = 7;
constexpr int32_t kCompare = 8;
constexpr int32_t kToBytes = 9;

struct Encoding {
    ZMStringEncoding selector;
    const char* converterName;
    // Input that does not decode is refused rather than repaired. Every windows-1252 byte is
    // a character, so only the other encodings' input can be wrong.
    bool refusesBadInput;
    // What the output holds in place of a character the encoding cannot hold; null keeps the
    // converter's own (UTF-8 holds every character, so it never needs one).
    const char* substitute;
    // Whether a byte of output begins a character, for cutting text that does not fit; null
    // where a byte alone cannot tell (the trail byte of a double-byte character may look like
    // any other byte).
    bool (*beginsCharacter)(char byte);
};

constexpr bool EveryByteBeginsACharacter(char) { return true; }

constexpr std::array<Encoding, 9> kEncodings = {{
    {ZM_ENCODING_PLATFORM, "windows-1252", false, "?", EveryByteBeginsACharacter},
    {ZM_ENCODING_UTF8, "UTF-8", true, nullptr, [](char byte) { return !U8_IS_TRAIL(byte); }},
    // The names a font suite writes, in the code page of the font's script.
    {ZM_ENCODING_ROMAN, "windows-1252", false, "?", EveryByteBeginsACharacter},
    {ZM_ENCODING_JAPANESE, "Shift_JIS", true, "?", nullptr},
    {ZM_ENCODING_TRADITIONAL_CHINESE, "windows-950", true, "?", nullptr},
    {ZM_ENCODING_SIMPLIFIED_CHINESE, "windows-936", true, "?", nullptr},
    {ZM_ENCODING_KOREAN, "windows-949", true, "?", nullptr},
    {ZM_ENCODING_CYRILLIC, "windows-1251", true, "?", EveryByteBeginsACharacter},
    {ZM_ENCODING_CENTRAL_EUROPEAN, "windows-1250", true, "?", EveryByteBeginsACharacter},
}};

const Encoding& FindEncoding(ZMStringEncoding selector) {
    for (const Encoding& encoding : kEncodings) {
        if (encoding.selector == selector) {
            return encoding;
        }
    }
    throw HostError(ZM_ERR_BAD_ENCODING, "unknown string encoding");
}

// Turns an ICU status into the code the plug-in sees; warnings are success.
void CheckConversion(UErrorCode status) {
    if (U_SUCCESS(status)) {
        return;
    }
    switch (status) {
        case U_MEMORY_ALLOCATION_ERROR:
            throw HostError(ZM_ERR_NO_MEMORY, "out of memory converting a string");
        case U_INVALID_CHAR_FOUND:
        case U_ILLEGAL_CHAR_FOUND:
        case U_TRUNCATED_CHAR_FOUND:
            throw HostError(ZM_ERR_BAD_ENCODING, "bytes are not valid in their encoding");
        default:
            throw HostError(ZM_ERR_INTERNAL, u_errorName(status));
    }
}

using Converter = std::unique_ptr<UConverter, decltype(&ucnv_close)>;

Converter OpenConverter(const Encoding& encoding) {
    UErrorCode status = U_ZERO_ERROR;
    Converter converter(ucnv_open(encoding.converterName, &status), &ucnv_close);
    CheckConversion(status);
    if (encoding.refusesBadInput) {
        ucnv_setToUCallBack(converter.get(), UCNV_TO_U_CALLBACK_STOP, nullptr, nullptr, nullptr,
                            &status);
    }
    if (encoding.substitute != nullptr) {
        // The converter's default substitution callback writes this once per code point, a
        // surrogate pair included, so each character the encoding lacks becomes one "?".
        ucnv_setSubstChars(converter.get(), encoding.substitute,
                           static_cast<int8_t>(std::strlen(encoding.substitute)), &status);
    }
    CheckConversion(status);
    return converter;
}

icu::UnicodeString Decode(std::string_view bytes, const Encoding& encoding) {
    if (bytes.empty()) {
        return {};
    }
    Converter converter = OpenConverter(encoding);
    UErrorCode status = U_ZERO_ERROR;
    icu::UnicodeString text(bytes.data(), static_cast<int32_t>(bytes.size()), converter.get(),
                            status);
    CheckConversion(status);
    RequireUsable(text);
    return text;
}

std::string Encode(const icu::UnicodeString& text, const Encoding& encoding) {
    if (text.isEmpty()) {
        return {};
    }
    Converter converter = OpenConverter(encoding);
    UErrorCode status = U_ZERO_ERROR;
    int32_t length =
        ucnv_fromUChars(converter.get(), nullptr, 0, text.getBuffer(), text.length(), &status);
    if (status != U_BUFFER_OVERFLOW_ERROR) {
        CheckConversion(status);
    }
    std::string bytes(static_cast<std::size_t>(length), '\0');
    status = U_ZERO_ERROR;  // a full buffer leaves no room for ICU's NUL: only a warning
    ucnv_fromUChars(converter.get(), bytes.data(), length, text.getBuffer(), text.length(),
                    &status);
    CheckConversion(status);
    return bytes;
}

// The length of the longest start of bytes (text in encoding), at most limit long, that ends
// between two characters.
std::size_t CutAtCharacter(const icu::UnicodeString& text, const std::string& bytes,
                           const Encoding& encoding, std::size_t limit) {
    if (limit >= bytes.size()) {
        return bytes.size();
    }
    if (encoding.beginsCharacter != nullptr) {
        std::size_t cut = limit;
        while (cut > 0 && !encoding.beginsCharacter(bytes[cut])) {
            --cut;
        }
        return cut;
    }
    // These encodings keep no state from one character to the next, so the bytes of a start
    // of the text are its characters' bytes one after the other.
    std::size_t kept = 0;
    for (int32_t start = 0; start < text.length();) {
        int32_t end = text.moveIndex32(start, 1);
        std::size_t size = Encode(text.tempSubStringBetween(start, end), encoding).size();
        if (kept + size > limit) {
            break;
        }
        kept += size;
        start = end;
    }
    return kept;
}

// A byte range from a plug-in: the count is never negative, and the pointer may be null only
// when the range is empty.
void RequireByteRange(const char* bytes, int32_t count) {
    if (count < 0 || (bytes == nullptr && count > 0)) {
        throw HostError(ZM_ERR_BAD_ARGUMENT, "bad byte range");
    }
}

ZMErr ZM_API NewEmpty(ZMUnicodeString* result) {
    return GuardSuiteCall(ZM_UNICODE_STRING_SUITE_NAME, kNewEmpty, [&](Runtime&) {
        RequireArguments(result);
        *result = MakeHandle(icu::UnicodeString());
    });
}

ZMErr ZM_API NewFromBytes(const char* bytes, int32_t byteCount, ZMStringEncoding encoding,
                          ZMUnicodeString* result) {
    return GuardSuiteCall(ZM_UNICODE_STRING_SUITE_NAME, kNewFromBytes, [&](Runtime&) {
        RequireArguments(result);
        RequireByteRange(bytes, byteCount);
        const Encoding& source = FindEncoding(encoding);
        std::string_view range(bytes, static_cast<std::size_t>(byteCount));
        *result = MakeHandle(Decode(range, source));
    });
}

ZMErr ZM_API NewFromLocalizableKey(const char* key, ZMUnicodeString* result) {
    return GuardSuiteCall(ZM_UNICODE_STRING_SUITE_NAME, kNewFromLocalizableKey,
                          [&](Runtime& runtime) {
                              RequireArguments(key, result);
                              std::string text = runtime.localizer.Localize(key);
                              *result = MakeHandle(Decode(text, FindEncoding(ZM_ENCODING_UTF8)));
                          });
}

ZMErr ZM_API Dispose(ZMUnicodeString string) {
    return GuardSuiteCall(ZM_UNICODE_STRING_SUITE_NAME, kDispose, [&](Runtime&) {
        if (string != nullptr) {
            delete &Deref(string);
        }
    });
}

ZMErr ZM_API Copy(ZMUnicodeString source, ZMUnicodeString* result) {
    return GuardSuiteCall(ZM_UNICODE_STRING_SUITE_NAME, kCopy, [&](Runtime&) {
        RequireArguments(result);
        *result = MakeHandle(Read(source));
    });
}

ZMErr ZM_API Assign(ZMUnicodeString target, ZMUnicodeString source) {
    return GuardSuiteCall(ZM_UNICODE_STRING_SUITE_NAME, kAssign, [&](Runtime&) {
        icu::UnicodeString& text = Deref(target);
        text = Read(source);
        RequireUsable(text);
    });
}

ZMErr ZM_API Append(ZMUnicodeString target, ZMUnicodeString tail) {
    return GuardSuiteCall(ZM_UNICODE_STRING_SUITE_NAME, kAppend, [&](Runtime&) {
        icu::UnicodeString& text = Deref(target);
        text.append(Read(tail));  // ICU copies first when the tail is the target itself
        RequireUsable(text);
    });
}

ZMErr ZM_API Length(ZMUnicodeString string, int32_t* length) {
    return GuardSuiteCall(ZM_UNICODE_STRING_SUITE_NAME, kLength, [&](Runtime&) {
        RequireArguments(length);
        *length = Read(string).length();
    });
}

ZMErr ZM_API Compare(ZMUnicodeString first, ZMUnicodeString second, int32_t* order) {
    return GuardSuiteCall(ZM_UNICODE_STRING_SUITE_NAME, kCompare, [&](Runtime&) {
        RequireArguments(order);
        // UnicodeString::compare works on UTF-16 code units, not code points: a supplementary
        // character sorts before U+E000..U+FFFF.
        int8_t sign = Read(first).compare(Read(second));
        *order = (sign > 0) - (sign < 0);
    });
}

ZMErr ZM_API ToBytes(ZMUnicodeString string, ZMStringEncoding encoding, char* buffer,
                     int32_t bufferSize, int32_t* byteCount) {
    return GuardSuiteCall(ZM_UNICODE_STRING_SUITE_NAME, kToBytes, [&](Runtime&) {
        RequireArguments(byteCount);
        RequireByteRange(buffer, bufferSize);
        const Encoding& target = FindEncoding(encoding);
        const icu::UnicodeString& text = Read(string);
        std::string bytes = Encode(text, target);
        *byteCount = static_cast<int32_t>(bytes.size());  // ICU lengths are int32_t already
        if (bufferSize > 0) {
            std::size_t kept =
                CutAtCharacter(text, bytes, target, static_cast<std::size_t>(bufferSize) - 1);
            std::memcpy(buffer, bytes.data(), kept);
            buffer[kept] = '\0';
        }
        // The NUL takes a byte too, so the text fits only when it is shorter than the buffer;
        // a zero-size buffer thereby asks for the length alone.
        if (bytes.size() >= static_cast<std::size_t>(bufferSize)) {
            throw HostError(ZM_ERR_BUFFER_TOO_SMALL, "text does not fit the buffer");
        }
    });
}

const ZMUnicodeStringSuite kUnicodeStringSuite = {
    NewEmpty,               // 0
    NewFromBytes,           // 1
    NewFromLocalizableKey,  // 2
    Dispose,                // 3
    Copy,                   // 4
    Assign,                 // 5
    Append,                 // 6
    Length,                 // 7
    Compare,                // 8
    ToBytes,                // 9
};

}  // namespace

void RegisterUnicodeStringSuite(SuiteRegistry& registry) {
    registry.Add(ZM_UNICODE_STRING_SUITE_NAME, ZM_UNICODE_STRING_SUITE_VERSION,
                 &kUnicodeStringSuite);
}

}  // namespace zm::host
