#include "suites/SuiteRegistrations.hpp"

#include "runtime/HostError.hpp"
#include "suites/CountedObjects.hpp"
#include "suites/SuiteGuard.hpp"
#include "suites/TextEngineObjects.hpp"

#include <zelmora/KRXParagraphSuites.h>

namespace zm::host {

namespace {

constexpr const char* kSuite = ZM_KRX_PARA_FEATURES_SUITE_NAME;

ZMErr ZM_API Create(KRXParaFeaturesRef* features) {
    return GuardSuiteCall(kSuite, 0, [&](Runtime& runtime) {
        RequireArguments(features);
        *features = AddCounted<KRXParaFeaturesRef>(runtime, ParaFeaturesObject{});
    });
}

ZMErr ZM_API AddRef(KRXParaFeaturesRef features) {
    return RetainEntry<ParaFeaturesObject>(kSuite, 1, features);
}

ZMErr ZM_API Release(KRXParaFeaturesRef features) {
    return ReleaseEntry<ParaFeaturesObject>(kSuite, 2, features);
}

ZMErr ZM_API GetJustification(KRXParaFeaturesRef features, KRXEnumValue* justification,
                              int32_t* assigned) {
    return GuardSuiteCall(kSuite, 3, [&](Runtime& runtime) {
        const ParaFeaturesObject& object = RequireObject(runtime, features);
        RequireArguments(justification, assigned);
        *assigned = object.justification.has_value() ? 1 : 0;
        if (object.justification) {
            *justification = *object.justification;
        }
    });
}

ZMErr ZM_API SetJustification(KRXParaFeaturesRef features, KRXEnumValue justification) {
    return GuardSuiteCall(kSuite, 4, [&](Runtime& runtime) {
        ParaFeaturesObject& object = RequireObject(runtime, features);
        if (justification < KRX_PARAGRAPH_JUSTIFICATION_LEFT ||
            justification > KRX_PARAGRAPH_JUSTIFICATION_FULL_LAST_LINE_FULL) {
            throw HostError(ZM_ERR_BAD_ARGUMENT, "no such justification");
        }
        object.justification = justification;
    });
}

ZMErr ZM_API ClearJustification(KRXParaFeaturesRef features) {
    return GuardSuiteCall(kSuite, 5, [&](Runtime& runtime) {
        RequireObject(runtime, features).justification.reset();
    });
}

const KRXParaFeaturesSuite kTable = {
    Create,              // 0
    AddRef,              // 1
    Release,             // 2
    GetJustification,    // 3
    SetJustification,    // 4
    ClearJustification,  // 5
};

}  // namespace

void RegisterKRXParaFeaturesSuite(SuiteRegistry& registry) {
    registry.Add(ZM_KRX_PARA_FEATURES_SUITE_NAME, ZM_KRX_PARA_FEATURES_SUITE_VERSION, &kTable);
}

}  // namespace zm::host
