#include "suites/SuiteRegistrations.hpp"

#include "suites/CountedObjects.hpp"
#include "suites/EngineTextSlices.hpp"
#include "suites/KRXArrayObject.hpp"
#include "suites/SuiteGuard.hpp"
#include "suites/TextEngineObjects.hpp"

#include <zelmora/KRXParagraphSuites.h>

namespace zm::host {

namespace {

constexpr const char* kSuite = ZM_KRX_PARA_INSPECTOR_SUITE_NAME;

ZMErr ZM_API Create(KRXTextRangeRef range, KRXParaInspectorRef* inspector) {
    return GuardSuiteCall(kSuite, 0, [&](Runtime& runtime) {
        const TextRangeObject& object = RequireObject(runtime, range);
        RequireArguments(inspector);
        *inspector = AddCounted<KRXParaInspectorRef>(runtime, ParaInspectorObject{object.text});
    });
}

ZMErr ZM_API AddRef(KRXParaInspectorRef inspector) {
    return RetainEntry<ParaInspectorObject>(kSuite, 1, inspector);
}

ZMErr ZM_API Release(KRXParaInspectorRef inspector) {
    return ReleaseEntry<ParaInspectorObject>(kSuite, 2, inspector);
}

ZMErr ZM_API GetJustification(KRXParaInspectorRef inspector,
                              KRXArrayParagraphJustificationRef* justifications) {
    return GuardSuiteCall(kSuite, 3, [&](Runtime& runtime) {
        const ParaInspectorObject& object = RequireObject(runtime, inspector);
        RequireArguments(justifications);
        // Every paragraph is set left, so one value stands for them all.
        const std::size_t count = ParagraphPieces(*object.text).empty() ? 0 : 1;
        *justifications = AddArray<KRXArrayParagraphJustificationRef, KRXEnumValue>(
            runtime, count, [](std::size_t) { return KRX_PARAGRAPH_JUSTIFICATION_LEFT; });
    });
}

const KRXParaInspectorSuite kTable = {
    Create,            // 0
    AddRef,            // 1
    Release,           // 2
    GetJustification,  // 3
};

}  // namespace

void RegisterKRXParaInspectorSuite(SuiteRegistry& registry) {
    registry.Add(ZM_KRX_PARA_INSPECTOR_SUITE_NAME, ZM_KRX_PARA_INSPECTOR_SUITE_VERSION, &kTable);
}

}  // namespace zm::host
