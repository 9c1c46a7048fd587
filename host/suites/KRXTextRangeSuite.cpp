#include "suites/SuiteRegistrations.hpp"

#include "suites/CountedObjects.hpp"
#include "suites/SuiteGuard.hpp"
#include "suites/EngineTextSlices.hpp"
#include "suites/TextEngineObjects.hpp"
#include "suites/Utf8Buffer.hpp"

#include <zelmora/KRXTextRangeSuites.h>

#include <algorithm>
#include <limits>

namespace zm::host {

namespace {

constexpr const char* kSuite = ZM_KRX_TEXT_RANGE_SUITE_NAME;

ZMErr ZM_API AddRef(KRXTextRangeRef range) {
    return RetainEntry<TextRangeObject>(kSuite, 0, range);
}

ZMErr ZM_API Release(KRXTextRangeRef range) {
    return ReleaseEntry<TextRangeObject>(kSuite, 1, range);
}

ZMErr ZM_API GetSize(KRXTextRangeRef range, int32_t* size) {
    return GuardSuiteCall(kSuite, 2, [&](Runtime& runtime) {
        const TextRangeObject& object = RequireObject(runtime, range);
        RequireArguments(size);
        int64_t count = 0;
        for (const EngineRun& run : object.text->runs) {
            count += CountCodePoints(run.text);
        }
        *size = static_cast<int32_t>(std::min<int64_t>(count, std::numeric_limits<int32_t>::max()));
    });
}

ZMErr ZM_API GetContents(KRXTextRangeRef range, char* buffer, int32_t bufferSize) {
    return GuardSuiteCall(kSuite, 3, [&](Runtime& runtime) {
        const TextRangeObject& object = RequireObject(runtime, range);
        CopyToBuffer(PlainText(*object.text), buffer, bufferSize);
    });
}

ZMErr ZM_API GetCharInspector(KRXTextRangeRef range, KRXCharInspectorRef* inspector) {
    return GuardSuiteCall(kSuite, 4, [&](Runtime& runtime) {
        const TextRangeObject& object = RequireObject(runtime, range);
        RequireArguments(inspector);
        *inspector = AddCounted<KRXCharInspectorRef>(runtime, CharInspectorObject{object.text});
    });
}

const KRXTextRangeSuite kTable = {
    AddRef,            // 0
    Release,           // 1
    GetSize,           // 2
    GetContents,       // 3
    GetCharInspector,  // 4
};

}  // namespace

void RegisterKRXTextRangeSuite(SuiteRegistry& registry) {
    registry.Add(ZM_KRX_TEXT_RANGE_SUITE_NAME, ZM_KRX_TEXT_RANGE_SUITE_VERSION, &kTable);
}

}  // namespace zm::host
