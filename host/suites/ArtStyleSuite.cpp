#include "suites/ArtStyleHandle.hpp"
#include "suites/ColorRecords.hpp"
#include "suites/CurrentDocument.hpp"
#include "suites/SuiteGuard.hpp"
#include "suites/SuiteRegistrations.hpp"
#include "suites/UnicodeStringHandle.hpp"

#include <zelmora/ZMArtStyleSuite.h>

namespace zm::host {

namespace {

constexpr const char* kSuite = ZM_ART_STYLE_SUITE_NAME;

const document::ArtStyle& RequireStyle(ZMArtStyleHandle style) {
    return RequireArtStyle(RequireCurrentDocument(), style);
}

ZMErr ZM_API GetArtStyle(ZMArtHandle art, ZMArtStyleHandle* style) {
    return GuardSuiteCall(kSuite, 0, [&](Runtime&) {
        document::Document& document = RequireCurrentDocument();
        const document::Art& styled = RequireStyledArt(art);
        RequireArguments(style);
        *style = ToArtStyleHandle(document.artStyles.StyleOf(styled));
    });
}

ZMErr ZM_API GetArtStyleName(ZMArtStyleHandle style, ZMUnicodeString name, ZMBool* anonymous) {
    return GuardSuiteCall(kSuite, 1, [&](Runtime&) {
        const document::ArtStyle& held = RequireStyle(style);
        RequireArguments(anonymous);
        AssignUtf8(name, held.Name());
        *anonymous = held.Anonymous() ? 1 : 0;
    });
}

ZMErr ZM_API GetArtStyleKind(ZMArtStyleHandle style, int16_t* kind) {
    return GuardSuiteCall(kSuite, 2, [&](Runtime&) {
        const document::ArtStyle& held = RequireStyle(style);
        RequireArguments(kind);
        *kind = static_cast<int16_t>(held.Kind());
    });
}

ZMErr ZM_API GetPathStyle(ZMArtStyleHandle style, ZMPathStyle* pathStyle) {
    return GuardSuiteCall(kSuite, 3, [&](Runtime&) {
        const document::ArtStyle& held = RequireStyle(style);
        RequireArguments(pathStyle);
        *pathStyle = ToPathStyleRecord(held.paint);
    });
}

ZMErr ZM_API GetArtStyleBlend(ZMArtStyleHandle style, int32_t* mode, double* opacity) {
    return GuardSuiteCall(kSuite, 4, [&](Runtime&) {
        const document::ArtStyle& held = RequireStyle(style);
        RequireArguments(mode, opacity);
        *mode = static_cast<int32_t>(held.blend.mode);
        *opacity = held.blend.EffectiveOpacity();
    });
}

ZMArtStyleSuite MakeTable() {
    ZMArtStyleSuite table{};
    table.GetArtStyle = GetArtStyle;
    table.GetArtStyleName = GetArtStyleName;
    table.GetArtStyleKind = GetArtStyleKind;
    table.GetPathStyle = GetPathStyle;
    table.GetArtStyleBlend = GetArtStyleBlend;
    return table;
}

const ZMArtStyleSuite kTable = MakeTable();

}  // namespace

void RegisterArtStyleSuite(SuiteRegistry& registry) {
    registry.Add(ZM_ART_STYLE_SUITE_NAME, ZM_ART_STYLE_SUITE_VERSION, &kTable);
}

}  // namespace zm::host
