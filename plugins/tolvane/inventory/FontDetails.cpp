#include "inventory/FontInventory.hpp"

#include "inventory/ListEntry.hpp"
#include "report/Error.hpp"
#include "report/LoadTolvaneString.hpp"
#include "shell/ErrorAlert.hpp"
#include "shell/SuiteSet.hpp"
#include "survey/SurveyRecord.hpp"

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdio>
#include <string>

namespace tolvane {

namespace {

constexpr std::size_t kNameBuffer = 64;    // at most 63 bytes of a name
constexpr std::size_t kBlockBuffer = 500;  // at most 499 characters of a block
constexpr std::size_t kLineLength = 200;

constexpr int16_t kDetailNotInstalled = 1;
constexpr int16_t kDetailFormat = 10;

// The language each script is shown as, and the encoding of the Windows name's bytes.
struct ScriptText {
    ZMFontScript script;
    int16_t language;  // index in ResFontDetail
    ZMStringEncoding encoding;
};

constexpr std::array<ScriptText, 10> kScripts = {{
    {-2, 14, ZM_ENCODING_PLATFORM},  // the host's own script
    {ZM_FONT_SCRIPT_UNKNOWN, 18, ZM_ENCODING_PLATFORM},
    {ZM_FONT_SCRIPT_ROMAN, 3, ZM_ENCODING_ROMAN},
    {ZM_FONT_SCRIPT_JAPANESE, 4, ZM_ENCODING_JAPANESE},
    {ZM_FONT_SCRIPT_TRADITIONAL_CHINESE, 11, ZM_ENCODING_TRADITIONAL_CHINESE},
    {ZM_FONT_SCRIPT_KOREAN, 12, ZM_ENCODING_KOREAN},
    {ZM_FONT_SCRIPT_CYRILLIC, 15, ZM_ENCODING_CYRILLIC},
    {ZM_FONT_SCRIPT_SIMPLIFIED_CHINESE, 13, ZM_ENCODING_SIMPLIFIED_CHINESE},
    {ZM_FONT_SCRIPT_CENTRAL_EUROPEAN, 16, ZM_ENCODING_CENTRAL_EUROPEAN},
    {ZM_FONT_SCRIPT_SYMBOL, 17, ZM_ENCODING_PLATFORM},
}};

constexpr ScriptText kOtherScript = {0, 5, ZM_ENCODING_PLATFORM};  // "Unknown language"

const ScriptText& TextOfScript(ZMFontScript script) {
    auto found = std::find_if(kScripts.begin(), kScripts.end(),
                              [&](const ScriptText& row) { return row.script == script; });
    return found != kScripts.end() ? *found : kOtherScript;
}

// The index in ResFontDetail of the tsume kind's text; any other kind is "N/A".
int16_t TsumeText(int32_t kind) {
    switch (kind) {
        case 1:
            return 6;  // GX TrueType
        case 2:
            return 7;  // Folionix-J Tsume
        case 3:
            return 8;  // CID
        default:
            return 9;
    }
}

// The block is formatted in the platform's single-byte encoding.
std::string Narrow(const HostString& text) { return ToBytes(text.Get(), ZM_ENCODING_PLATFORM); }

// A buffer the host leaves as it was holds no PostScript name: the font is reported as not
// installed. The host writes the name in UTF-8.
std::string PostScriptText(ZMFontKey key) {
    std::array<char, kNameBuffer> name{};
    sFontSuite->GetPostScriptName(key, name.data(), static_cast<int32_t>(name.size()));
    if (std::all_of(name.begin(), name.begin() + 8, [](char byte) { return byte == '\0'; })) {
        return Narrow(LoadTolvaneString(ResFontDetail, kDetailNotInstalled));
    }
    return Narrow(MakeUnicodeFromBytes(name.data(), ZM_ENCODING_UTF8));
}

// The host writes the Windows name in the code page of the font's script.
std::string WindowsText(ZMFontKey key, ZMStringEncoding encoding) {
    std::array<char, kNameBuffer> name{};
    sFontSuite->GetWindowsName(key, name.data(), static_cast<int32_t>(name.size()));
    return Narrow(MakeUnicodeFromBytes(name.data(), encoding));
}

using Block = std::array<char, kBlockBuffer>;

// The block's text; a longer one is cut at the buffer's end. Font queries that fail leave
// their text empty; the info record then reads as a font that is not installed.
void FormatBlock(ZMFontKey key, Block& block) {
    std::string format = Narrow(LoadTolvaneString(ResFontDetail, kDetailFormat));
    ZMFontInfo info{};
    sFontSuite->GetFontInfo(key, &info);
    std::string postScriptName = PostScriptText(key);
    const ScriptText& script = TextOfScript(info.script);
    std::string windowsName = WindowsText(key, script.encoding);
    std::string language = Narrow(LoadTolvaneString(ResFontDetail, script.language));
    std::string fontType = Narrow(LoadTolvaneString(ResFontTypeDetail, FontTypeIndex(info)));
    std::string tsume = Narrow(LoadTolvaneString(ResFontDetail, TsumeText(info.tsumeKind)));
    // The first line is the PostScript name too, not the name the font list shows. The
    // format is the localized text; translators keep its six conversions.
#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wformat-nonliteral"
    std::snprintf(block.data(), block.size(), format.c_str(), postScriptName.c_str(),
                  postScriptName.c_str(), windowsName.c_str(), language.c_str(), fontType.c_str(),
                  tsume.c_str());
#pragma GCC diagnostic pop
}

void AppendLine(const std::string& line) {
    ZMErr error = zm::CodeOrNoMemory([&] {
        HostString text = MakeUnicodeFromBytes(line.c_str(), ZM_ENCODING_PLATFORM);
        return LinkStrAppend(CollectingSurvey().lists.fontDetailList, text.Get(), true);
    });
    if (error != ZM_ERR_NONE) {
        ShowErrorAlert(kAlertError, kAlertMessageList, kAlertOutOfMemory, kAlertIdFont,
                       "AddFont:LinkStrAdd");
    }
}

// One list entry per line, blank lines included. A line longer than the line length is
// broken, and the step over the line end then skips two characters of the text.
void AppendLines(const Block& block) {
    std::size_t position = 0;
    while (position < block.size() && block[position] != '\0') {
        std::string line;
        while (line.size() < kLineLength && position < block.size() && block[position] != '\r' &&
               block[position] != '\0') {
            line += block[position++];
        }
        AppendLine(line);
        position += 2;
    }
}

}  // namespace

void AddFontDetails(ZMFontKey key) {
    Block block{};
    // A block whose texts cannot be made is left out.
    if (zm::CodeOrNoMemory([&] {
            FormatBlock(key, block);
            return ZM_ERR_NONE;
        }) != ZM_ERR_NONE) {
        return;
    }
    AppendLines(block);
}

}  // namespace tolvane
