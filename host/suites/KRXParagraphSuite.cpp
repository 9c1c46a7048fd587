#include "suites/SuiteRegistrations.hpp"

#include "suites/CountedObjects.hpp"
#include "suites/EngineIteratorSuite.hpp"
#include "suites/EngineTextSlices.hpp"
#include "suites/SuiteGuard.hpp"
#include "suites/TextEngineObjects.hpp"

#include <zelmora/KRXParagraphSuites.h>

#include <memory>
#include <vector>

namespace zm::host {

namespace {

constexpr const char* kSuite = ZM_KRX_PARAGRAPH_SUITE_NAME;

ZMErr ZM_API AddRef(KRXParagraphRef paragraph) {
    return RetainEntry<ParagraphObject>(kSuite, 0, paragraph);
}

ZMErr ZM_API Release(KRXParagraphRef paragraph) {
    return ReleaseEntry<ParagraphObject>(kSuite, 1, paragraph);
}

ZMErr ZM_API GetTextRange(KRXParagraphRef paragraph, KRXTextRangeRef* range) {
    return GuardSuiteCall(kSuite, 2, [&](Runtime& runtime) {
        const ParagraphObject& object = RequireObject(runtime, paragraph);
        RequireArguments(range);
        *range = AddCounted<KRXTextRangeRef>(runtime, TextRangeObject{object.text});
    });
}

const KRXParagraphSuite kTable = {
    AddRef,        // 0
    Release,       // 1
    GetTextRange,  // 2
};

std::vector<ParagraphObject> Paragraphs(Runtime&, const TextRangeObject& range) {
    std::vector<std::shared_ptr<const EngineText>> pieces = ParagraphPieces(*range.text);
    return {pieces.begin(), pieces.end()};
}

using ParagraphsIterator =
    EngineIteratorSuite<ZM_KRX_PARAGRAPHS_ITERATOR_SUITE_NAME, KRXParagraphsIteratorSuite,
                        KRXParagraphsIteratorRef, KRXTextRangeRef, KRXParagraphRef, Paragraphs>;

}  // namespace

void RegisterKRXParagraphSuites(SuiteRegistry& registry) {
    registry.Add(ZM_KRX_PARAGRAPH_SUITE_NAME, ZM_KRX_PARAGRAPH_SUITE_VERSION, &kTable);
    registry.Add(ZM_KRX_PARAGRAPHS_ITERATOR_SUITE_NAME, ZM_KRX_PARAGRAPHS_ITERATOR_SUITE_VERSION,
                 &ParagraphsIterator::kTable);
}

}  // namespace zm::host
