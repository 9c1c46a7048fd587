#include "shell/ErrorAlert.hpp"

#include "shell/FrameworkCalls.hpp"
#include "shell/SuiteSet.hpp"

#include <array>
#include <cstdio>
#include <cstring>
#include <string>

namespace tolvane {

namespace {

constexpr int32_t kNameList = 18000;      // 1: the plug-in's display name
constexpr int32_t kSeverityList = 19300;  // 1-3: severity words; 4: "Filter error:"
constexpr int16_t kFilterErrorIndex = 4;
constexpr std::size_t kLongMessage = 80;  // longer sentences share the title's paragraph
constexpr int32_t kMaxText = 255;

// Every text is built in a 256-byte buffer, at most 255 characters.
using TextBuffer = std::array<char, kMaxText + 1>;

// Appends as much of tail as fits, never splitting a UTF-8 sequence.
void Append(TextBuffer& buffer, const char* tail) {
    std::size_t used = std::strlen(buffer.data());
    std::size_t room = kMaxText - used;
    std::size_t length = std::strlen(tail);
    if (length > room) {
        length = room;
        while (length > 0 && (static_cast<unsigned char>(tail[length]) & 0xC0u) == 0x80u) {
            --length;
        }
    }
    std::memcpy(buffer.data() + used, tail, length);
    buffer[used + length] = '\0';
}

// A string the host could not give leaves the buffer as it was.
void Fetch(ZMPluginRef plugin, int32_t list, int16_t index, TextBuffer& buffer) {
    sPxmBasicSuite->GetIndexedString(plugin, list, index, buffer.data(), kMaxText);
}

TextBuffer DetailLine(ZMPluginRef plugin, int32_t code, const char* context) {
    TextBuffer detail{};
    if (code < 0) {
        // "%l" is a length modifier without a conversion; the text the C library makes of
        // it is what the detail line shows, so the format is passed as it stands.
        TextBuffer number{};
#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wformat"
#pragma GCC diagnostic ignored "-Wformat-extra-args"
        std::snprintf(number.data(), number.size(), "%l", code);
#pragma GCC diagnostic pop
        Append(detail, "ID = ");
        Append(detail, number.data());
        Append(detail, "  ");
    } else if (code > 0) {
        Fetch(plugin, kSeverityList, kFilterErrorIndex, detail);
        auto bits = static_cast<uint32_t>(code);
        const char chars[5] = {static_cast<char>(bits >> 24), static_cast<char>(bits >> 16),
                               static_cast<char>(bits >> 8), static_cast<char>(bits), '\0'};
        Append(detail, chars);
        Append(detail, "  ");
    }
    Append(detail, context != nullptr ? context : "");
    return detail;
}

}  // namespace

void ShowErrorAlert(int16_t severity, int32_t messageList, int16_t messageIndex, int32_t code,
                    const char* context) {
    ZMPluginRef plugin = nullptr;
    GetPluginRef(&plugin);

    TextBuffer title{};
    Fetch(plugin, kNameList, 1, title);
    if (severity >= kAlertError && severity <= kAlertNote) {
        TextBuffer word{};
        Fetch(plugin, kSeverityList, severity, word);
        Append(title, word.data());
    }
    TextBuffer message{};
    Fetch(plugin, messageList, messageIndex, message);
    Append(title, std::strlen(message.data()) <= kLongMessage ? "\r\r" : "  ");
    Append(title, message.data());
    Append(title, "\r\r");

    TextBuffer detail = DetailLine(plugin, code, context);

    // Line feed before carriage return, and two empty parts at the end: the alert's text
    // has four parts.
    std::string text = std::string(title.data()) + "\n\r" + detail.data() + "\n\r" + "" + "\n\r" + "";
    ZMUnicodeString alert = nullptr;
    if (sUnicodeStringSuite->NewFromBytes(text.data(), static_cast<int32_t>(text.size()),
                                          ZM_ENCODING_UTF8, &alert) != ZM_ERR_NONE) {
        return;
    }
    switch (severity) {
        case kAlertError:
            sUserSuite->ErrorAlert(alert);
            break;
        case kAlertCaution:
            sUserSuite->WarningAlert(alert, nullptr);
            break;
        case kAlertNote:
            sUserSuite->MessageAlert(alert);
            break;
        default:
            break;
    }
    sUnicodeStringSuite->Dispose(alert);
}

}  // namespace tolvane
