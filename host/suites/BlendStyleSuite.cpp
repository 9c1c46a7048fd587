#include "suites/ArtStyleHandle.hpp"
#include "suites/CurrentDocument.hpp"
#include "suites/SuiteGuard.hpp"
#include "suites/SuiteRegistrations.hpp"

#include <zelmora/ZMBlendStyleSuite.h>

namespace zm::host {

namespace {

constexpr const char* kSuite = ZM_BLEND_STYLE_SUITE_NAME;

// Art handles only make sense while their document is open.
const document::BlendStyle& ArtBlend(ZMArtHandle art) {
    RequireCurrentDocument();
    return RequireStyledArt(art).blend;
}

const document::BlendStyle& StyleBlend(ZMArtStyleHandle style) {
    return RequireArtStyle(RequireCurrentDocument(), style).blend;
}

void ReadMode(const document::BlendStyle& blend, ZMBlendingMode* mode) {
    RequireArguments(mode);
    *mode = static_cast<ZMBlendingMode>(blend.mode);
}

void ReadOpacity(const document::BlendStyle& blend, double* opacity) {
    RequireArguments(opacity);
    *opacity = blend.EffectiveOpacity();
}

void ReadNormalOpaque(const document::BlendStyle& blend, ZMBool* normalOpaque) {
    RequireArguments(normalOpaque);
    *normalOpaque = blend.IsOpaqueNormal() ? 1 : 0;
}

ZMErr ZM_API GetBlendingMode(ZMArtHandle art, ZMBlendingMode* mode) {
    return GuardSuiteCall(kSuite, 0, [&](Runtime&) { ReadMode(ArtBlend(art), mode); });
}

ZMErr ZM_API GetOpacity(ZMArtHandle art, double* opacity) {
    return GuardSuiteCall(kSuite, 1, [&](Runtime&) { ReadOpacity(ArtBlend(art), opacity); });
}

ZMErr ZM_API IsNormalOpaque(ZMArtHandle art, ZMBool* normalOpaque) {
    return GuardSuiteCall(kSuite, 2,
                          [&](Runtime&) { ReadNormalOpaque(ArtBlend(art), normalOpaque); });
}

ZMErr ZM_API GetStyleBlendingMode(ZMArtStyleHandle style, ZMBlendingMode* mode) {
    return GuardSuiteCall(kSuite, 3, [&](Runtime&) { ReadMode(StyleBlend(style), mode); });
}

ZMErr ZM_API GetStyleOpacity(ZMArtStyleHandle style, double* opacity) {
    return GuardSuiteCall(kSuite, 4, [&](Runtime&) { ReadOpacity(StyleBlend(style), opacity); });
}

ZMErr ZM_API IsStyleNormalOpaque(ZMArtStyleHandle style, ZMBool* normalOpaque) {
    return GuardSuiteCall(kSuite, 5,
                          [&](Runtime&) { ReadNormalOpaque(StyleBlend(style), normalOpaque); });
}

ZMBlendStyleSuite MakeTable() {
    ZMBlendStyleSuite table{};
    table.GetBlendingMode = GetBlendingMode;
    table.GetOpacity = GetOpacity;
    table.IsNormalOpaque = IsNormalOpaque;
    table.GetStyleBlendingMode = GetStyleBlendingMode;
    table.GetStyleOpacity = GetStyleOpacity;
    table.IsStyleNormalOpaque = IsStyleNormalOpaque;
    return table;
}

const ZMBlendStyleSuite kTable = MakeTable();

}  // namespace

void RegisterBlendStyleSuite(SuiteRegistry& registry) {
    registry.Add(ZM_BLEND_STYLE_SUITE_NAME, ZM_BLEND_STYLE_SUITE_VERSION, &kTable);
}

}  // namespace zm::host
