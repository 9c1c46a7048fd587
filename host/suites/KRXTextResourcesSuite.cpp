#include "suites/SuiteRegistrations.hpp"

#include "suites/CountedObjects.hpp"
#include "suites/DocumentTextStyles.hpp"
#include "suites/SuiteGuard.hpp"
#include "suites/TextEngineObjects.hpp"
#include "suites/TextResourcesObject.hpp"

#include <zelmora/KRXTextResourcesSuites.h>

namespace zm::host {

namespace {

constexpr const char* kSuite = ZM_KRX_TEXT_RESOURCES_SUITE_NAME;

ZMErr ZM_API AddRef(ZMTextResourcesRef resources) {
    return RetainEntry<TextResourcesObject>(kSuite, 0, resources);
}

ZMErr ZM_API Release(ZMTextResourcesRef resources) {
    return ReleaseEntry<TextResourcesObject>(kSuite, 1, resources);
}

// An entry handing out a new object made by make(runtime) from the resources.
template <typename Ref, typename Make>
ZMErr HandOut(int32_t entry, ZMTextResourcesRef resources, Ref* out, Make make) {
    return GuardSuiteCall(kSuite, entry, [&](Runtime& runtime) {
        RequireTextResources(runtime, resources);
        RequireArguments(out);
        *out = AddCounted<Ref>(runtime, make(runtime));
    });
}

ZMErr ZM_API GetKinsokuSet(ZMTextResourcesRef resources, KRXKinsokuSetRef* set) {
    return HandOut(2, resources, set, [](Runtime&) { return KinsokuSetObject{}; });
}

ZMErr ZM_API GetMojiKumiSet(ZMTextResourcesRef resources, KRXMojiKumiSetRef* set) {
    return HandOut(3, resources, set, [](Runtime&) { return MojiKumiSetObject{}; });
}

ZMErr ZM_API GetCompFontSet(ZMTextResourcesRef resources, KRXCompFontSetRef* set) {
    return HandOut(4, resources, set, [](Runtime&) { return CompFontSetObject{}; });
}

ZMErr ZM_API GetCharStyles(ZMTextResourcesRef resources, KRXCharStylesRef* styles) {
    return HandOut(5, resources, styles,
                   [](Runtime& runtime) { return DocumentCharStyles(runtime.fonts); });
}

ZMErr ZM_API GetParaStyles(ZMTextResourcesRef resources, KRXParaStylesRef* styles) {
    return HandOut(6, resources, styles, [](Runtime&) { return DocumentParaStyles(); });
}

const KRXTextResourcesSuite kTable = {
    AddRef,          // 0
    Release,         // 1
    GetKinsokuSet,   // 2
    GetMojiKumiSet,  // 3
    GetCompFontSet,  // 4
    GetCharStyles,   // 5
    GetParaStyles,   // 6
};

ZMErr ZM_API GetApplicationTextResources(ZMTextResourcesRef* resources) {
    return GuardSuiteCall(ZM_KRX_APPLICATION_TEXT_RESOURCES_SUITE_NAME, 0, [&](Runtime& runtime) {
        RequireArguments(resources);
        // The application highlights nothing of its own; documents say what they highlight.
        *resources = AddCounted<ZMTextResourcesRef>(runtime, TextResourcesObject{});
    });
}

const KRXApplicationTextResourcesSuite kApplicationTable = {
    GetApplicationTextResources,  // 0
};

}  // namespace

void RegisterKRXTextResourcesSuites(SuiteRegistry& registry) {
    registry.Add(ZM_KRX_TEXT_RESOURCES_SUITE_NAME, ZM_KRX_TEXT_RESOURCES_SUITE_VERSION, &kTable);
    registry.Add(ZM_KRX_APPLICATION_TEXT_RESOURCES_SUITE_NAME,
                 ZM_KRX_APPLICATION_TEXT_RESOURCES_SUITE_VERSION, &kApplicationTable);
}

}  // namespace zm::host
