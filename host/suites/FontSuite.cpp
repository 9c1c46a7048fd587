#include "suites/SuiteGuard.hpp"
#include "suites/SuiteRegistrations.hpp"

#include "fonts/FontCatalogue.hpp"
#include "fonts/FontNameBytes.hpp"
#include "suites/CountedObjects.hpp"
#include "suites/FontKeys.hpp"
#include "suites/TextEngineObjects.hpp"

#include <zelmora/ZMFontSuite.h>

#include <cstring>
#include <string>
#include <string_view>

namespace zm::host {

namespace {

constexpr const char* kSuite = ZM_FONT_SUITE_NAME;

const fonts::CatalogueFont& RequireFont(Runtime& runtime, ZMFontKey key) {
    return runtime.fonts.RequireFont(key);
}

// The name in the encoding asked for, cut to fit with its NUL.
void WriteName(std::string_view utf8, const char* encoding, char* buffer, int32_t bufferSize) {
    RequireArguments(buffer);
    if (bufferSize < 1) {
        throw HostError(ZM_ERR_BAD_ARGUMENT, "no room for a name");
    }
    std::string bytes =
        fonts::FontNameBytes(utf8, encoding, static_cast<std::size_t>(bufferSize) - 1);
    std::memcpy(buffer, bytes.data(), bytes.size());
    buffer[bytes.size()] = '\0';
}

ZMErr ZM_API FindFontKey(const char* family, int32_t weight, const char* style,
                         ZMFontKey* key) {
    return GuardSuiteCall(kSuite, 0, [&](Runtime& runtime) {
        RequireArguments(family, style, key);
        *key = ToFontKey(FindCatalogueFont(runtime.fonts, family, weight, style));
    });
}

ZMErr ZM_API GetFontInfo(ZMFontKey key, ZMFontInfo* info) {
    return GuardSuiteCall(kSuite, 1, [&](Runtime& runtime) {
        const fonts::CatalogueFont& font = RequireFont(runtime, key);
        RequireArguments(info);
        const fonts::FontFacts& facts = font.facts;
        *info = ZMFontInfo{};
        info->platformFont =
            reinterpret_cast<ZMPlatformFont>(const_cast<fonts::FontProgram*>(font.program));
        info->technology = static_cast<ZMFontTechnology>(facts.technology);
        info->script = facts.script;
        info->installed = facts.installed ? 1 : 0;
        info->cid = facts.cid ? 1 : 0;
        info->tsumeKind = 0;
        info->openType = facts.openType ? 1 : 0;
        info->bitmap = facts.bitmap ? 1 : 0;
        info->type1 = facts.type1 ? 1 : 0;
        info->composite = 0;
        info->alternateName = facts.alternateName ? 1 : 0;
    });
}

ZMErr ZM_API GetPostScriptName(ZMFontKey key, char* buffer, int32_t bufferSize) {
    return GuardSuiteCall(kSuite, 2, [&](Runtime& runtime) {
        WriteName(RequireFont(runtime, key).facts.postScriptName, "UTF-8", buffer, bufferSize);
    });
}

ZMErr ZM_API GetFullName(ZMFontKey key, char* buffer, int32_t bufferSize) {
    return GuardSuiteCall(kSuite, 3, [&](Runtime& runtime) {
        WriteName(RequireFont(runtime, key).facts.fullName, "UTF-8", buffer, bufferSize);
    });
}

ZMErr ZM_API GetWindowsName(ZMFontKey key, char* buffer, int32_t bufferSize) {
    return GuardSuiteCall(kSuite, 4, [&](Runtime& runtime) {
        const fonts::FontFacts& facts = RequireFont(runtime, key).facts;
        WriteName(facts.windowsName, fonts::WindowsCodePage(facts.script), buffer, bufferSize);
    });
}

ZMErr ZM_API FontKeyFromKRXFont(KRXFontRef font, ZMFontKey* key) {
    return GuardSuiteCall(kSuite, 5, [&](Runtime& runtime) {
        const FontObject& object = RequireObject(runtime, font);
        RequireArguments(key);
        *key = ToFontKey(*object.font);
    });
}

ZMErr ZM_API KRXFontFromFontKey(ZMFontKey key, KRXFontRef* font) {
    return GuardSuiteCall(kSuite, 6, [&](Runtime& runtime) {
        const fonts::CatalogueFont& catalogued = RequireFont(runtime, key);
        RequireArguments(font);
        *font = AddCounted<KRXFontRef>(runtime, FontObject{&catalogued});
    });
}

ZMFontSuite MakeTable() {
    ZMFontSuite table{};
    table.FindFontKey = FindFontKey;
    table.GetFontInfo = GetFontInfo;
    table.GetPostScriptName = GetPostScriptName;
    table.GetFullName = GetFullName;
    table.GetWindowsName = GetWindowsName;
    table.FontKeyFromKRXFont = FontKeyFromKRXFont;
    table.KRXFontFromFontKey = KRXFontFromFontKey;
    return table;
}

const ZMFontSuite kTable = MakeTable();

}  // namespace

void RegisterFontSuite(SuiteRegistry& registry) {
    registry.Add(ZM_FONT_SUITE_NAME, ZM_FONT_SUITE_VERSION, &kTable);
}

}  // namespace zm::host
