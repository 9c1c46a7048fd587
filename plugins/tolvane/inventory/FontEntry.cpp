#include "inventory/FontInventory.hpp"

#include "inventory/ListEntry.hpp"
#include "report/Error.hpp"
#include "report/LoadTolvaneString.hpp"
#include "shell/SuiteSet.hpp"
#include "survey/SurveyRecord.hpp"

#include <array>
#include <cstddef>

namespace tolvane {

namespace {

constexpr int32_t kPostScriptNameBuffer = 256;  // at most 255 bytes
constexpr std::size_t kFullNameBuffer = 512;
constexpr std::size_t kFullNameCharacters = 255;

// Ends UTF-8 text after its first `characters` characters.
void CutAfterCharacters(char* text, std::size_t characters) {
    std::size_t seen = 0;
    for (char* byte = text; *byte != '\0'; ++byte) {
        if ((static_cast<unsigned char>(*byte) & 0xC0u) != 0x80u && seen++ == characters) {
            *byte = '\0';
            return;
        }
    }
}

// The name the list shows: the font's full name where the user asked for full names and the
// font has one of its own, else its PostScript name. The host writes both in UTF-8.
HostString ListedName(ZMFontKey key, const ZMFontInfo& info) {
    int32_t alternateNames = 0;
    zm::Check(sFontGlueSuite->GetAlternateNameSetting(&alternateNames));
    std::array<char, kFullNameBuffer> name{};
    if (alternateNames != 0 && info.alternateName != 0) {
        zm::Check(sFontSuite->GetFullName(key, name.data(), static_cast<int32_t>(name.size())));
        CutAfterCharacters(name.data(), kFullNameCharacters);
    } else {
        zm::Check(sFontSuite->GetPostScriptName(key, name.data(), kPostScriptNameBuffer));
    }
    return MakeUnicodeFromBytes(name.data(), ZM_ENCODING_UTF8);
}

}  // namespace

ZMErr AddFont(ZMFontKey key) {
    return zm::CodeOrNoMemory([&]() -> ZMErr {
        ZMFontInfo info{};
        zm::Check(sFontSuite->GetFontInfo(key, &info));
        HostString entry = ListedName(key, info);
        entry.Append(LoadTolvaneString(ResFontType, FontTypeIndex(info)));
        // The whole text decides: a font met again under the same name and type is the
        // same entry, one of the same name but another type a new one.
        SurveyStringList& fonts = CollectingSurvey().lists.fontList;
        if (LinkStrFind(fonts, entry.Get())) {
            return ZM_ERR_NONE;
        }
        // Counted before it is listed: the count stands when the list cannot take it.
        ++CollectingSurvey().record.fontCount;
        if (ZMErr error = InsertOrAlert(fonts, entry.Get(), kAlertIdFont, "AddFont:LinkStrAdd");
            error != ZM_ERR_NONE) {
            return error;
        }
        AddFontDetails(key);
        return ZM_ERR_NONE;
    });
}

}  // namespace tolvane
