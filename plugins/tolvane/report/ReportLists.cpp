#include "report/ReportLists.hpp"

#include "report/Error.hpp"
#include "report/LoadTolvaneString.hpp"
#include "report/ReportBuffer.hpp"

#include <array>
#include <cstdio>
#include <cstring>
#include <string>

namespace tolvane {

namespace {

constexpr std::size_t kCountLineBuffer = 512;

// printf cuts a long line at the buffer's end, which may split a UTF-8 character; the host
// refuses such bytes, so the cut goes back to the last whole character.
void DropCutCharacter(char* text) {
    std::size_t length = std::strlen(text);
    std::size_t start = length;
    while (start > 0 && (static_cast<unsigned char>(text[start - 1]) & 0xC0u) == 0x80u &&
           length - start < 3) {
        --start;
    }
    if (start == 0) {
        return;
    }
    auto lead = static_cast<unsigned char>(text[start - 1]);
    std::size_t needed = lead < 0x80u ? 1 : lead >= 0xF0u ? 4 : lead >= 0xE0u ? 3 : 2;
    if (length - (start - 1) < needed) {
        text[start - 1] = '\0';
    }
}

// "NONE" for a list without nodes.
ZMErr AppendNone(ReportText& text) {
    HostString none = LoadTolvaneString(ResOther, kOtherNone);
    return AppendReportLine(text, none.Get(), 1);
}

}  // namespace

ZMErr AppendNameList(ReportText& text, const SurveyStringList& list, int16_t titleIndex) {
    if (ZMErr error = AppendSectionTitle(text, titleIndex); error != ZM_ERR_NONE) {
        return error;
    }
    return zm::CodeOf([&]() -> ZMErr {
        if (list.first == nullptr) {
            return AppendNone(text);
        }
        for (const SurveyStringNode* node = list.first; node != nullptr; node = node->next) {
            HostString line = HostString::Copy(node->text);
            if (node->next != nullptr) {
                line.Append(LineBreak());
            }
            if (ZMErr error = AppendReportLine(text, line.Get(), 0); error != ZM_ERR_NONE) {
                return error;
            }
        }
        return ZM_ERR_NONE;
    });
}

ZMErr AppendCountList(ReportText& text, const SurveyStringList& list, int16_t titleIndex) {
    if (ZMErr error = AppendSectionTitle(text, titleIndex); error != ZM_ERR_NONE) {
        return error;
    }
    return zm::CodeOf([&]() -> ZMErr {
        if (list.first == nullptr) {
            return AppendNone(text);
        }
        for (const SurveyStringNode* node = list.first; node != nullptr; node = node->next) {
            HostString format = LoadTolvaneString(ResOther, kOtherCountFormat);
            std::string formatBytes = ToBytes(format.Get(), ZM_ENCODING_UTF8);
            std::string name = ToBytes(node->text, ZM_ENCODING_UTF8);
            std::array<char, kCountLineBuffer> buffer{};
            // The format is the localized text; translators keep its two conversions.
#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wformat-nonliteral"
            std::snprintf(buffer.data(), buffer.size(), formatBytes.c_str(), name.c_str(),
                          static_cast<int>(node->count));
#pragma GCC diagnostic pop
            DropCutCharacter(buffer.data());
            HostString line = MakeUnicodeFromBytes(buffer.data(), ZM_ENCODING_UTF8);
            line.Append(LineBreak());
            if (ZMErr error = AppendReportLine(text, line.Get(), 0); error != ZM_ERR_NONE) {
                return error;
            }
        }
        return ZM_ERR_NONE;
    });
}

}  // namespace tolvane
