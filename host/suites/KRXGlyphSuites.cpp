#include "suites/SuiteRegistrations.hpp"

#include "suites/CountedObjects.hpp"
#include "suites/EngineGlyphs.hpp"
#include "suites/EngineIteratorSuite.hpp"
#include "suites/EngineListSuite.hpp"
#include "suites/SuiteGuard.hpp"
#include "suites/TextEngineObjects.hpp"

#include <zelmora/KRXGlyphSuites.h>

#include <vector>

namespace zm::host {

namespace {

constexpr const char* kGlyphSuite = ZM_KRX_GLYPH_SUITE_NAME;

ZMErr ZM_API AddRef(KRXGlyphRef glyph) { return RetainEntry<GlyphObject>(kGlyphSuite, 0, glyph); }

ZMErr ZM_API Release(KRXGlyphRef glyph) {
    return ReleaseEntry<GlyphObject>(kGlyphSuite, 1, glyph);
}

ZMErr ZM_API GetGlyphID(KRXGlyphRef glyph, KRXGlyphID* id) {
    return GuardSuiteCall(kGlyphSuite, 2, [&](Runtime& runtime) {
        const GlyphObject& object = RequireObject(runtime, glyph);
        RequireArguments(id);
        *id = object.glyph;
    });
}

ZMErr ZM_API GetFont(KRXGlyphRef glyph, KRXFontRef* font) {
    return GuardSuiteCall(kGlyphSuite, 3, [&](Runtime& runtime) {
        const GlyphObject& object = RequireObject(runtime, glyph);
        RequireArguments(font);
        *font = AddCounted<KRXFontRef>(runtime, FontObject{object.font});
    });
}

const KRXGlyphSuite kGlyphTable = {
    AddRef,      // 0
    Release,     // 1
    GetGlyphID,  // 2
    GetFont,     // 3
};

using Glyphs = EngineListSuite<ZM_KRX_GLYPHS_SUITE_NAME, KRXGlyphsRef, KRXGlyphRef>;

ZMErr ZM_API CreateOfRange(KRXTextRangeRef range, KRXGlyphsRef* glyphs) {
    return GuardSuiteCall(ZM_KRX_GLYPHS_SUITE_NAME, 0, [&](Runtime& runtime) {
        const TextRangeObject& object = RequireObject(runtime, range);
        RequireArguments(glyphs);
        *glyphs =
            AddCounted<KRXGlyphsRef>(runtime, GlyphsObject{TextGlyphs(runtime.fonts, *object.text)});
    });
}

const KRXGlyphsSuite kGlyphsTable = {
    CreateOfRange,    // 0
    Glyphs::AddRef,   // 1
    Glyphs::Release,  // 2
    Glyphs::GetSize,  // 3
    Glyphs::Item,     // 4
};

std::vector<GlyphObject> ListedGlyphs(Runtime&, const GlyphsObject& glyphs) {
    return glyphs.values;
}

using GlyphsIterator =
    EngineIteratorSuite<ZM_KRX_GLYPHS_ITERATOR_SUITE_NAME, KRXGlyphsIteratorSuite,
                        KRXGlyphsIteratorRef, KRXGlyphsRef, KRXGlyphRef, ListedGlyphs>;

}  // namespace

void RegisterKRXGlyphSuites(SuiteRegistry& registry) {
    registry.Add(ZM_KRX_GLYPH_SUITE_NAME, ZM_KRX_GLYPH_SUITE_VERSION, &kGlyphTable);
    registry.Add(ZM_KRX_GLYPHS_SUITE_NAME, ZM_KRX_GLYPHS_SUITE_VERSION, &kGlyphsTable);
    registry.Add(ZM_KRX_GLYPHS_ITERATOR_SUITE_NAME, ZM_KRX_GLYPHS_ITERATOR_SUITE_VERSION,
                 &GlyphsIterator::kTable);
}

}  // namespace zm::host
