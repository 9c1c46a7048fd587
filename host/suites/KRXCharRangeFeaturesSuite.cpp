#include "suites/SuiteRegistrations.hpp"

#include "suites/RangeCharFeatures.hpp"
#include "suites/CountedObjects.hpp"
#include "suites/KRXArrayObject.hpp"
#include "suites/SuiteGuard.hpp"
#include "suites/TextEngineObjects.hpp"

#include <zelmora/KRXCharSuites.h>

#include <vector>

namespace zm::host {

namespace {

constexpr const char* kSuite = ZM_KRX_CHAR_INSPECTOR_SUITE_NAME;

// An array of new paints, one per fill style.
KRXArrayApplicationPaintRefRef PaintArray(Runtime& runtime,
                                          const std::vector<ZMFillStyle>& styles) {
    return AddArray<KRXArrayApplicationPaintRefRef, KRXApplicationPaintRef>(
        runtime, styles.size(), [&](std::size_t index) {
            return AddCounted<KRXApplicationPaintRef>(runtime,
                                                      ApplicationPaintObject{styles[index]});
        });
}

ZMErr ZM_API AddRef(KRXCharInspectorRef inspector) {
    return RetainEntry<CharInspectorObject>(kSuite, 0, inspector);
}

ZMErr ZM_API Release(KRXCharInspectorRef inspector) {
    return ReleaseEntry<CharInspectorObject>(kSuite, 1, inspector);
}

ZMErr ZM_API GetFont(KRXCharInspectorRef inspector, KRXArrayFontRefRef* fonts) {
    return GuardSuiteCall(kSuite, 2, [&](Runtime& runtime) {
        const CharInspectorObject& object = RequireObject(runtime, inspector);
        RequireArguments(fonts);
        std::vector<const fonts::CatalogueFont*> found = InspectFonts(runtime.fonts, *object.text);
        *fonts =
            AddArray<KRXArrayFontRefRef, KRXFontRef>(runtime, found.size(), [&](std::size_t index) {
                return AddCounted<KRXFontRef>(runtime, FontObject{found[index]});
            });
    });
}

ZMErr ZM_API GetFontSize(KRXCharInspectorRef inspector, KRXArrayRealRef* sizes) {
    return GuardSuiteCall(kSuite, 3, [&](Runtime& runtime) {
        const CharInspectorObject& object = RequireObject(runtime, inspector);
        RequireArguments(sizes);
        std::vector<double> found = InspectFontSizes(*object.text);
        *sizes = AddArray<KRXArrayRealRef, double>(runtime, found.size(),
                                                   [&](std::size_t index) { return found[index]; });
    });
}

ZMErr ZM_API GetFillColor(KRXCharInspectorRef inspector, KRXArrayApplicationPaintRefRef* paints) {
    return GuardSuiteCall(kSuite, 4, [&](Runtime& runtime) {
        const CharInspectorObject& object = RequireObject(runtime, inspector);
        RequireArguments(paints);
        *paints = PaintArray(runtime, InspectFills(*object.text));
    });
}

ZMErr ZM_API GetStrokeColor(KRXCharInspectorRef inspector, KRXArrayApplicationPaintRefRef* paints) {
    return GuardSuiteCall(kSuite, 5, [&](Runtime& runtime) {
        const CharInspectorObject& object = RequireObject(runtime, inspector);
        RequireArguments(paints);
        *paints = PaintArray(runtime, InspectStrokes(*object.text));
    });
}

const KRXCharInspectorSuite kTable = {
    AddRef,          // 0
    Release,         // 1
    GetFont,         // 2
    GetFontSize,     // 3
    GetFillColor,    // 4
    GetStrokeColor,  // 5
};

}  // namespace

void RegisterKRXCharInspectorSuite(SuiteRegistry& registry) {
    registry.Add(ZM_KRX_CHAR_INSPECTOR_SUITE_NAME, ZM_KRX_CHAR_INSPECTOR_SUITE_VERSION, &kTable);
}

}  // namespace zm::host
