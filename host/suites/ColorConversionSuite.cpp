#include "suites/SuiteRegistrations.hpp"

#include "suites/ColorProfileHandle.hpp"
#include "suites/CurrentDocument.hpp"
#include "suites/SuiteGuard.hpp"
#include "suites/UnicodeStringHandle.hpp"

#include <zelmora/ZMColorConversionSuite.h>

#include <optional>
#include <string>

namespace zm::host {

namespace {

constexpr const char* kSuite = ZM_OVERRIDE_COLOR_CONVERSION_SUITE_NAME;

const std::optional<std::string>& ProfileForModel(const document::Document& document,
                                                  int16_t model) {
    switch (model) {
        case document::kColorModelGray:
            return document.grayProfile;
        case document::kColorModelRgb:
            return document.rgbProfile;
        case document::kColorModelCmyk:
            return document.cmykProfile;
        default:
            throw HostError(ZM_ERR_BAD_ARGUMENT, "no profiles for that colour model");
    }
}

ZMErr ZM_API GetProfileName(ZMColorProfile profile, ZMUnicodeString name) {
    return GuardSuiteCall(kSuite, 0, [&](Runtime&) {
        const document::Document& document = RequireCurrentDocument();
        AssignUtf8(name, RequireProfileName(document, profile));
    });
}

ZMErr ZM_API CountDocumentProfiles(int32_t* count) {
    return GuardSuiteCall(kSuite, 1, [&](Runtime&) {
        const document::Document& document = RequireCurrentDocument();
        RequireArguments(count);
        *count = (document.grayProfile ? 1 : 0) + (document.rgbProfile ? 1 : 0) +
                 (document.cmykProfile ? 1 : 0);
    });
}

ZMErr ZM_API GetProfileForModel(int16_t model, ZMColorProfile* profile) {
    return GuardSuiteCall(kSuite, 2, [&](Runtime&) {
        const document::Document& document = RequireCurrentDocument();
        RequireArguments(profile);
        *profile = ToProfileHandle(ProfileForModel(document, model));
    });
}

const ZMColorConversionSuite kTable = {
    GetProfileName,         // 0
    CountDocumentProfiles,  // 1
    GetProfileForModel,     // 2
};

}  // namespace

void RegisterColorConversionSuite(SuiteRegistry& registry) {
    registry.Add(ZM_OVERRIDE_COLOR_CONVERSION_SUITE_NAME,
                 ZM_OVERRIDE_COLOR_CONVERSION_SUITE_VERSION, &kTable);
}

}  // namespace zm::host
