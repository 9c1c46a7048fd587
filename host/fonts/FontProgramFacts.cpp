#include "fonts/FontProgramFacts.hpp"

#include "fonts/CodePageScript.hpp"

#include <ft2build.h>
#include FT_FREETYPE_H
#include FT_CID_H
#include FT_FONT_FORMATS_H
#include FT_SFNT_NAMES_H
#include FT_TRUETYPE_IDS_H
#include FT_TRUETYPE_TABLES_H
#include FT_TYPE1_TABLES_H

#include <unicode/unistr.h>

#include <optional>
#include <string>
#include <string_view>

namespace zm::host::fonts {

namespace {

std::string_view Format(FT_Face face) {
    const char* format = FT_Get_Font_Format(face);
    return format != nullptr ? format : "";
}

// The platform-3 encodings whose names are Unicode; the legacy CJK ones are not.
bool IsUnicode(FT_UShort encoding) {
    return encoding == TT_MS_ID_SYMBOL_CS || encoding == TT_MS_ID_UNICODE_CS ||
           encoding == TT_MS_ID_UCS_4;
}

// A name of the sfnt name table as a Windows system reads it (platform 3, Unicode), US
// English where the font has it, else the first language it has; UTF-8.
std::optional<std::string> WindowsTableName(FT_Face face, FT_UShort nameId) {
    std::optional<std::string> found;
    FT_UInt count = FT_IS_SFNT(face) ? FT_Get_Sfnt_Name_Count(face) : 0;
    for (FT_UInt i = 0; i < count; ++i) {
        FT_SfntName name{};
        if (FT_Get_Sfnt_Name(face, i, &name) != 0 || name.platform_id != TT_PLATFORM_MICROSOFT ||
            name.name_id != nameId || !IsUnicode(name.encoding_id)) {
            continue;
        }
        if (found && name.language_id != TT_MS_LANGID_ENGLISH_UNITED_STATES) {
            continue;
        }
        // Every Unicode encoding of platform 3 stores its names as UTF-16, big-endian.
        icu::UnicodeString text(reinterpret_cast<const char*>(name.string),
                                static_cast<int32_t>(name.string_len), "UTF-16BE");
        std::string utf8;
        text.toUTF8String(utf8);
        found = utf8;
        if (name.language_id == TT_MS_LANGID_ENGLISH_UNITED_STATES) {
            break;
        }
    }
    return found;
}

std::string FamilyName(FT_Face face) {
    return face->family_name != nullptr ? face->family_name : "";
}

std::string FullName(FT_Face face) {
    if (auto name = WindowsTableName(face, TT_NAME_ID_FULL_NAME)) {
        return *name;
    }
    PS_FontInfoRec info{};
    if (FT_Get_PS_Font_Info(face, &info) == 0 && info.full_name != nullptr) {
        return info.full_name;
    }
    std::string name = FamilyName(face);
    if (face->style_name != nullptr && std::string_view(face->style_name) != "Regular") {
        name += ' ';
        name += face->style_name;
    }
    return name;
}

std::string PostScriptName(FT_Face face) {
    if (const char* name = FT_Get_Postscript_Name(face); name != nullptr) {
        return name;
    }
    std::string name = FamilyName(face);
    std::erase(name, ' ');
    return name;
}

FontTechnology Technology(std::string_view format) {
    // Type 42 wraps TrueType outlines in a PostScript font.
    if (format == "TrueType" || format == "Type 42") {
        return FontTechnology::TrueType;
    }
    if (format == "CFF" || format == "Type 1" || format == "CID Type 1") {
        return FontTechnology::PostScript;
    }
    return FontTechnology::Other;
}

bool CidKeyed(FT_Face face, std::string_view format) {
    if (format == "CID Type 1") {
        return true;
    }
    FT_Bool cid = 0;
    return format == "CFF" && FT_Get_CID_Is_Internally_CID_Keyed(face, &cid) == 0 && cid != 0;
}

int32_t Script(FT_Face face) {
    const auto* os2 = static_cast<const TT_OS2*>(FT_Get_Sfnt_Table(face, FT_SFNT_OS2));
    // The code-page ranges came with version 1 of the table.
    if (os2 == nullptr || os2->version == 0xFFFF || os2->version < 1) {
        return -1;
    }
    return ScriptFromCodePages(static_cast<uint32_t>(os2->ulCodePageRange1));
}

}  // namespace

FontFacts ReadFontFacts(const FontProgram& program) {
    FT_Face face = program.Face();
    std::string_view format = Format(face);
    FontFacts facts;
    facts.postScriptName = PostScriptName(face);
    facts.fullName = FullName(face);
    facts.windowsName = WindowsTableName(face, TT_NAME_ID_FONT_FAMILY).value_or(FamilyName(face));
    facts.technology = Technology(format);
    facts.script = Script(face);
    facts.installed = true;
    facts.cid = CidKeyed(face, format);
    facts.openType = FT_IS_SFNT(face) && format == "CFF";
    facts.bitmap = !FT_IS_SCALABLE(face);
    facts.type1 = format == "Type 1";
    facts.alternateName = !facts.fullName.empty() && facts.fullName != facts.postScriptName;
    return facts;
}

}  // namespace zm::host::fonts
