#include "suites/SuiteRegistrations.hpp"

#include "suites/SuiteGuard.hpp"
#include "suites/TextResourcesObject.hpp"

#include <zelmora/KRXTextResourcesSuites.h>

namespace zm::host {

namespace {

constexpr const char* kSuite = ZM_KRX_DOCUMENT_TEXT_RESOURCES_SUITE_NAME;

ZMErr ZM_API GetHighlightSubstitutedFonts(ZMTextResourcesRef resources, uint8_t* highlight) {
    return GuardSuiteCall(kSuite, 0, [&](Runtime& runtime) {
        const TextResourcesObject& object = RequireTextResources(runtime, resources);
        RequireArguments(highlight);
        *highlight = object.highlightSubstitutedFonts ? 1 : 0;
    });
}

ZMErr ZM_API GetHighlightSubstitutedGlyphs(ZMTextResourcesRef resources, uint8_t* highlight) {
    return GuardSuiteCall(kSuite, 1, [&](Runtime& runtime) {
        const TextResourcesObject& object = RequireTextResources(runtime, resources);
        RequireArguments(highlight);
        *highlight = object.highlightSubstitutedGlyphs ? 1 : 0;
    });
}

ZMErr ZM_API AddRef(ZMTextResourcesRef resources) {
    return GuardSuiteCall(kSuite, 2, [&](Runtime& runtime) {
        runtime.objects.Retain<TextResourcesObject>(resources);
    });
}

ZMErr ZM_API Release(ZMTextResourcesRef resources) {
    return GuardSuiteCall(kSuite, 3, [&](Runtime& runtime) {
        runtime.objects.Release<TextResourcesObject>(resources);
    });
}

const KRXDocumentTextResourcesSuite kTable = {
    GetHighlightSubstitutedFonts,   // 0
    GetHighlightSubstitutedGlyphs,  // 1
    AddRef,                         // 2
    Release,                        // 3
};

}  // namespace

void RegisterDocumentTextResourcesSuite(SuiteRegistry& registry) {
    registry.Add(ZM_KRX_DOCUMENT_TEXT_RESOURCES_SUITE_NAME,
                 ZM_KRX_DOCUMENT_TEXT_RESOURCES_SUITE_VERSION, &kTable);
}

}  // namespace zm::host
