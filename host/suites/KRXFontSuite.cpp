#include "suites/SuiteRegistrations.hpp"

#include "suites/CountedObjects.hpp"
#include "suites/SuiteGuard.hpp"
#include "suites/TextEngineObjects.hpp"

#include <zelmora/KRXFontSuite.h>

namespace zm::host {

namespace {

constexpr const char* kSuite = ZM_KRX_FONT_SUITE_NAME;

ZMErr ZM_API AddRef(KRXFontRef font) { return RetainEntry<FontObject>(kSuite, 0, font); }

ZMErr ZM_API Release(KRXFontRef font) { return ReleaseEntry<FontObject>(kSuite, 1, font); }

ZMErr ZM_API IsEqual(KRXFontRef font, KRXFontRef other, uint8_t* equal) {
    return GuardSuiteCall(kSuite, 2, [&](Runtime& runtime) {
        const FontObject& first = RequireObject(runtime, font);
        const FontObject& second = RequireObject(runtime, other);
        RequireArguments(equal);
        *equal = first.font == second.font ? 1 : 0;
    });
}

const KRXFontSuite kTable = {
    AddRef,   // 0
    Release,  // 1
    IsEqual,  // 2
};

}  // namespace

void RegisterKRXFontSuite(SuiteRegistry& registry) {
    registry.Add(ZM_KRX_FONT_SUITE_NAME, ZM_KRX_FONT_SUITE_VERSION, &kTable);
}

}  // namespace zm::host
