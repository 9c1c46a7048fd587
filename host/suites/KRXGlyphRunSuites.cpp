#include "suites/SuiteRegistrations.hpp"

#include "suites/CountedObjects.hpp"
#include "suites/EngineGlyphs.hpp"
#include "suites/EngineIteratorSuite.hpp"
#include "suites/KRXArrayObject.hpp"
#include "suites/SuiteGuard.hpp"
#include "suites/TextEngineObjects.hpp"

#include <zelmora/KRXGlyphSuites.h>

#include <vector>

namespace zm::host {

namespace {

constexpr const char* kSuite = ZM_KRX_GLYPH_RUN_SUITE_NAME;

ZMErr ZM_API AddRef(KRXGlyphRunRef run) { return RetainEntry<GlyphRunObject>(kSuite, 0, run); }

ZMErr ZM_API Release(KRXGlyphRunRef run) {
    return ReleaseEntry<GlyphRunObject>(kSuite, 1, run);
}

ZMErr ZM_API GetFont(KRXGlyphRunRef run, KRXFontRef* font) {
    return GuardSuiteCall(kSuite, 2, [&](Runtime& runtime) {
        const GlyphRunObject& object = RequireObject(runtime, run);
        RequireArguments(font);
        *font = AddCounted<KRXFontRef>(runtime, FontObject{object.font});
    });
}

ZMErr ZM_API GetFontSize(KRXGlyphRunRef run, double* size) {
    return GuardSuiteCall(kSuite, 3, [&](Runtime& runtime) {
        const GlyphRunObject& object = RequireObject(runtime, run);
        RequireArguments(size);
        *size = object.fontSize;
    });
}

ZMErr ZM_API GetSize(KRXGlyphRunRef run, int32_t* size) {
    return GuardSuiteCall(kSuite, 4, [&](Runtime& runtime) {
        const GlyphRunObject& object = RequireObject(runtime, run);
        RequireArguments(size);
        *size = static_cast<int32_t>(object.glyphs.size());
    });
}

ZMErr ZM_API GetGlyphIDs(KRXGlyphRunRef run, KRXArrayGlyphIDRef* glyphs) {
    return GuardSuiteCall(kSuite, 5, [&](Runtime& runtime) {
        const GlyphRunObject& object = RequireObject(runtime, run);
        RequireArguments(glyphs);
        *glyphs = AddArray<KRXArrayGlyphIDRef, KRXGlyphID>(
            runtime, object.glyphs.size(), [&](std::size_t index) { return object.glyphs[index]; });
    });
}

ZMErr ZM_API GetTextRange(KRXGlyphRunRef run, KRXTextRangeRef* range) {
    return GuardSuiteCall(kSuite, 6, [&](Runtime& runtime) {
        const GlyphRunObject& object = RequireObject(runtime, run);
        RequireArguments(range);
        *range = AddCounted<KRXTextRangeRef>(runtime, TextRangeObject{object.text});
    });
}

const KRXGlyphRunSuite kTable = {
    AddRef,        // 0
    Release,       // 1
    GetFont,       // 2
    GetFontSize,   // 3
    GetSize,       // 4
    GetGlyphIDs,   // 5
    GetTextRange,  // 6
};

std::vector<GlyphRunObject> LineGlyphRuns(Runtime& runtime, const TextLineObject& line) {
    return TextGlyphRuns(runtime.fonts, *line.text);
}

using RunsIterator =
    EngineIteratorSuite<ZM_KRX_GLYPH_RUNS_ITERATOR_SUITE_NAME, KRXGlyphRunsIteratorSuite,
                        KRXGlyphRunsIteratorRef, KRXTextLineRef, KRXGlyphRunRef, LineGlyphRuns>;

}  // namespace

void RegisterKRXGlyphRunSuites(SuiteRegistry& registry) {
    registry.Add(ZM_KRX_GLYPH_RUN_SUITE_NAME, ZM_KRX_GLYPH_RUN_SUITE_VERSION, &kTable);
    registry.Add(ZM_KRX_GLYPH_RUNS_ITERATOR_SUITE_NAME, ZM_KRX_GLYPH_RUNS_ITERATOR_SUITE_VERSION,
                 &RunsIterator::kTable);
}

}  // namespace zm::host
