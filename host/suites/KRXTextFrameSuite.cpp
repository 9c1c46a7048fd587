#include "suites/SuiteRegistrations.hpp"

#include "suites/CountedObjects.hpp"
#include "suites/SuiteGuard.hpp"
#include "suites/TextEngineObjects.hpp"

#include <zelmora/KRXTextFrameSuites.h>

namespace zm::host {

namespace {

constexpr const char* kSuite = ZM_KRX_TEXT_FRAME_SUITE_NAME;

ZMErr ZM_API AddRef(KRXTextFrameRef frame) {
    return RetainEntry<TextFrameObject>(kSuite, 0, frame);
}

ZMErr ZM_API Release(KRXTextFrameRef frame) {
    return ReleaseEntry<TextFrameObject>(kSuite, 1, frame);
}

ZMErr ZM_API GetType(KRXTextFrameRef frame, KRXFrameType* type) {
    return GuardSuiteCall(kSuite, 2, [&](Runtime& runtime) {
        const TextFrameObject& object = RequireObject(runtime, frame);
        RequireArguments(type);
        *type = object.text->frameType;
    });
}

ZMErr ZM_API GetTextRange(KRXTextFrameRef frame, KRXTextRangeRef* range) {
    return GuardSuiteCall(kSuite, 3, [&](Runtime& runtime) {
        const TextFrameObject& object = RequireObject(runtime, frame);
        RequireArguments(range);
        *range = AddCounted<KRXTextRangeRef>(runtime, TextRangeObject{object.text});
    });
}

const KRXTextFrameSuite kTable = {
    AddRef,        // 0
    Release,       // 1
    GetType,       // 2
    GetTextRange,  // 3
};

}  // namespace

void RegisterKRXTextFrameSuite(SuiteRegistry& registry) {
    registry.Add(ZM_KRX_TEXT_FRAME_SUITE_NAME, ZM_KRX_TEXT_FRAME_SUITE_VERSION, &kTable);
}

}  // namespace zm::host
