#include "suites/SuiteRegistrations.hpp"

#include "runtime/HostError.hpp"
#include "suites/CountedObjects.hpp"
#include "suites/FontKeys.hpp"
#include "suites/SuiteGuard.hpp"
#include "suites/TextEngineObjects.hpp"

#include <zelmora/KRXCharSuites.h>

#include <cmath>

namespace zm::host {

namespace {

constexpr const char* kSuite = ZM_KRX_CHAR_FEATURES_SUITE_NAME;

ZMErr ZM_API Create(KRXCharFeaturesRef* features) {
    return GuardSuiteCall(kSuite, 0, [&](Runtime& runtime) {
        RequireArguments(features);
        *features = AddCounted<KRXCharFeaturesRef>(runtime, CharFeaturesObject{});
    });
}

ZMErr ZM_API AddRef(KRXCharFeaturesRef features) {
    return RetainEntry<CharFeaturesObject>(kSuite, 1, features);
}

ZMErr ZM_API Release(KRXCharFeaturesRef features) {
    return ReleaseEntry<CharFeaturesObject>(kSuite, 2, features);
}

ZMErr ZM_API CreateOfRange(KRXTextRangeRef range, KRXCharFeaturesRef* features) {
    return GuardSuiteCall(kSuite, 3, [&](Runtime& runtime) {
        const TextRangeObject& object = RequireObject(runtime, range);
        RequireArguments(features);
        CharFeaturesObject found;
        for (const EngineRun& run : object.text->runs) {
            if (!run.text.empty()) {
                found.font =
                    &FindCatalogueFont(runtime.fonts, run.fontFamily, run.weight, run.fontStyle);
                found.fontSize = run.fontSize;
                found.fill = run.fill;
                break;
            }
        }
        *features = AddCounted<KRXCharFeaturesRef>(runtime, found);
    });
}

ZMErr ZM_API GetFont(KRXCharFeaturesRef features, KRXFontRef* font, int32_t* assigned) {
    return GuardSuiteCall(kSuite, 4, [&](Runtime& runtime) {
        const CharFeaturesObject& object = RequireObject(runtime, features);
        RequireArguments(font, assigned);
        *assigned = object.font != nullptr ? 1 : 0;
        *font = object.font != nullptr ? AddCounted<KRXFontRef>(runtime, FontObject{object.font})
                                       : nullptr;
    });
}

ZMErr ZM_API GetFontSize(KRXCharFeaturesRef features, double* size, int32_t* assigned) {
    return GuardSuiteCall(kSuite, 5, [&](Runtime& runtime) {
        const CharFeaturesObject& object = RequireObject(runtime, features);
        RequireArguments(size, assigned);
        *assigned = object.fontSize.has_value() ? 1 : 0;
        if (object.fontSize) {
            *size = *object.fontSize;
        }
    });
}

ZMErr ZM_API SetFontSize(KRXCharFeaturesRef features, double size) {
    return GuardSuiteCall(kSuite, 6, [&](Runtime& runtime) {
        CharFeaturesObject& object = RequireObject(runtime, features);
        if (!(size > 0) || !std::isfinite(size)) {
            throw HostError(ZM_ERR_BAD_ARGUMENT, "a font size is above 0");
        }
        object.fontSize = size;
    });
}

ZMErr ZM_API GetFillColor(KRXCharFeaturesRef features, KRXApplicationPaintRef* paint,
                          int32_t* assigned) {
    return GuardSuiteCall(kSuite, 7, [&](Runtime& runtime) {
        const CharFeaturesObject& object = RequireObject(runtime, features);
        RequireArguments(paint, assigned);
        *assigned = object.fill.has_value() ? 1 : 0;
        *paint = object.fill ? AddCounted<KRXApplicationPaintRef>(
                                   runtime, ApplicationPaintObject{*object.fill})
                             : nullptr;
    });
}

const KRXCharFeaturesSuite kTable = {
    Create,         // 0
    AddRef,         // 1
    Release,        // 2
    CreateOfRange,  // 3
    GetFont,        // 4
    GetFontSize,    // 5
    SetFontSize,    // 6
    GetFillColor,   // 7
};

}  // namespace

void RegisterKRXCharFeaturesSuite(SuiteRegistry& registry) {
    registry.Add(ZM_KRX_CHAR_FEATURES_SUITE_NAME, ZM_KRX_CHAR_FEATURES_SUITE_VERSION, &kTable);
}

}  // namespace zm::host
