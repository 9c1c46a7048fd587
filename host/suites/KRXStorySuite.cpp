#include "suites/SuiteRegistrations.hpp"

#include "runtime/HostError.hpp"
#include "suites/CountedObjects.hpp"
#include "suites/SuiteGuard.hpp"
#include "suites/TextEngineObjects.hpp"

#include <zelmora/KRXStorySuites.h>

namespace zm::host {

namespace {

constexpr const char* kSuite = ZM_KRX_STORY_SUITE_NAME;

ZMErr ZM_API AddRef(KRXStoryRef story) { return RetainEntry<StoryObject>(kSuite, 0, story); }

ZMErr ZM_API Release(KRXStoryRef story) { return ReleaseEntry<StoryObject>(kSuite, 1, story); }

ZMErr ZM_API GetTextRange(KRXStoryRef story, KRXTextRangeRef* range) {
    return GuardSuiteCall(kSuite, 2, [&](Runtime& runtime) {
        const StoryObject& object = RequireObject(runtime, story);
        RequireArguments(range);
        *range = AddCounted<KRXTextRangeRef>(runtime, TextRangeObject{object.text});
    });
}

ZMErr ZM_API CountFrames(KRXStoryRef story, int32_t* count) {
    return GuardSuiteCall(kSuite, 3, [&](Runtime& runtime) {
        RequireObject(runtime, story);
        RequireArguments(count);
        *count = 1;
    });
}

ZMErr ZM_API GetFrame(KRXStoryRef story, int32_t index, KRXTextFrameRef* frame) {
    return GuardSuiteCall(kSuite, 4, [&](Runtime& runtime) {
        const StoryObject& object = RequireObject(runtime, story);
        RequireArguments(frame);
        if (index != 0) {
            throw HostError(ZM_ERR_BAD_ARGUMENT, "a story has one frame");
        }
        *frame = AddCounted<KRXTextFrameRef>(runtime, TextFrameObject{object.text});
    });
}

const KRXStorySuite kTable = {
    AddRef,        // 0
    Release,       // 1
    GetTextRange,  // 2
    CountFrames,   // 3
    GetFrame,      // 4
};

}  // namespace

void RegisterKRXStorySuite(SuiteRegistry& registry) {
    registry.Add(ZM_KRX_STORY_SUITE_NAME, ZM_KRX_STORY_SUITE_VERSION, &kTable);
}

}  // namespace zm::host
