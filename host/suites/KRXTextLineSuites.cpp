#include "suites/SuiteRegistrations.hpp"

#include "suites/CountedObjects.hpp"
#include "suites/EngineIteratorSuite.hpp"
#include "suites/EngineTextSlices.hpp"
#include "suites/SuiteGuard.hpp"
#include "suites/TextEngineObjects.hpp"

#include <zelmora/KRXTextFrameSuites.h>

#include <memory>
#include <vector>

namespace zm::host {

namespace {

constexpr const char* kSuite = ZM_KRX_TEXT_LINE_SUITE_NAME;

ZMErr ZM_API AddRef(KRXTextLineRef line) { return RetainEntry<TextLineObject>(kSuite, 0, line); }

ZMErr ZM_API Release(KRXTextLineRef line) {
    return ReleaseEntry<TextLineObject>(kSuite, 1, line);
}

ZMErr ZM_API GetTextRange(KRXTextLineRef line, KRXTextRangeRef* range) {
    return GuardSuiteCall(kSuite, 2, [&](Runtime& runtime) {
        const TextLineObject& object = RequireObject(runtime, line);
        RequireArguments(range);
        *range = AddCounted<KRXTextRangeRef>(runtime, TextRangeObject{object.text});
    });
}

const KRXTextLineSuite kTable = {
    AddRef,        // 0
    Release,       // 1
    GetTextRange,  // 2
};

// Nothing wraps, so the lines are the paragraphs.
std::vector<TextLineObject> Lines(Runtime&, const TextFrameObject& frame) {
    std::vector<std::shared_ptr<const EngineText>> pieces = ParagraphPieces(*frame.text);
    return {pieces.begin(), pieces.end()};
}

using LinesIterator =
    EngineIteratorSuite<ZM_KRX_TEXT_LINES_ITERATOR_SUITE_NAME, KRXTextLinesIteratorSuite,
                        KRXTextLinesIteratorRef, KRXTextFrameRef, KRXTextLineRef, Lines>;

}  // namespace

void RegisterKRXTextLineSuites(SuiteRegistry& registry) {
    registry.Add(ZM_KRX_TEXT_LINE_SUITE_NAME, ZM_KRX_TEXT_LINE_SUITE_VERSION, &kTable);
    registry.Add(ZM_KRX_TEXT_LINES_ITERATOR_SUITE_NAME, ZM_KRX_TEXT_LINES_ITERATOR_SUITE_VERSION,
                 &LinesIterator::kTable);
}

}  // namespace zm::host
