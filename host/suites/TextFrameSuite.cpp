#include "suites/SuiteRegistrations.hpp"

#include "suites/ArtHandles.hpp"
#include "suites/CountedObjects.hpp"
#include "suites/CurrentDocument.hpp"
#include "suites/EngineText.hpp"
#include "suites/SuiteGuard.hpp"
#include "suites/TextEngineObjects.hpp"

#include <zelmora/ZMTextFrameSuite.h>

namespace zm::host {

namespace {

constexpr const char* kSuite = ZM_TEXT_FRAME_SUITE_NAME;

// The content of text frame art of the current document; null for a frame that holds none.
const document::TextFrame* RequireTextFrame(Runtime& runtime, ZMArtHandle frame) {
    CurrentDocument(runtime);
    return ArtOf(frame, document::ArtType::TextFrame).text.get();
}

ZMErr ZM_API GetKRXTextRange(ZMArtHandle frame, KRXTextRangeRef* range) {
    return GuardSuiteCall(kSuite, 0, [&](Runtime& runtime) {
        const document::TextFrame* content = RequireTextFrame(runtime, frame);
        RequireArguments(range);
        *range = AddCounted<KRXTextRangeRef>(runtime, TextRangeObject{CopyEngineText(content)});
    });
}

ZMErr ZM_API GetKRXTextFrame(ZMArtHandle frame, KRXTextFrameRef* textFrame) {
    return GuardSuiteCall(kSuite, 1, [&](Runtime& runtime) {
        const document::TextFrame* content = RequireTextFrame(runtime, frame);
        RequireArguments(textFrame);
        *textFrame = AddCounted<KRXTextFrameRef>(runtime, TextFrameObject{CopyEngineText(content)});
    });
}

// The frame path is art of its own, outside the layers: the art suites take its handle as they
// take any other, and it goes with its frame.
ZMErr ZM_API GetTextPathObject(ZMArtHandle frame, ZMArtHandle* path) {
    return GuardSuiteCall(kSuite, 2, [&](Runtime& runtime) {
        const document::TextFrame* content = RequireTextFrame(runtime, frame);
        RequireArguments(path);
        *path = content != nullptr ? HandleOf(content->framePath.get()) : nullptr;
    });
}

const ZMTextFrameSuite kTable = {
    GetKRXTextRange,    // 0
    GetKRXTextFrame,    // 1
    GetTextPathObject,  // 2
};

}  // namespace

void RegisterTextFrameSuite(SuiteRegistry& registry) {
    registry.Add(ZM_TEXT_FRAME_SUITE_NAME, ZM_TEXT_FRAME_SUITE_VERSION, &kTable);
}

}  // namespace zm::host
