#include "suites/ArtHandles.hpp"
#include "suites/CurrentDocument.hpp"
#include "suites/SuiteGuard.hpp"
#include "suites/SuiteRegistrations.hpp"

#include <zelmora/ZMARMSuite.h>
#include <zelmora/ZMArtSuite.h>

namespace zm::host {

namespace {

constexpr const char* kSuite = ZM_ARM_SUITE_NAME;

using document::Art;
using document::ArtType;

ZMErr ZM_API IsAvailable(ZMBool* available) {
    return GuardSuiteCall(kSuite, 0, [&](Runtime&) {
        RequireArguments(available);
        *available = 1;
    });
}

ZMErr ZM_API GetAssetUrl(ZMArtHandle art, const char** url) {
    return GuardSuiteCall(kSuite, 1, [&](Runtime& runtime) {
        CurrentDocument(runtime);
        const Art& object = ArtOf(art);
        RequireArguments(url);
        if (object.Type() != ArtType::Placed && object.Type() != ArtType::Raster) {
            throw HostError(ZM_ERR_WRONG_ART_TYPE, "neither placed nor raster art");
        }
        // The text lives in the art's image, so it stays valid as long as the art.
        static const char kNone[] = "";
        *url = object.image ? object.image->assetUrl.c_str() : kNone;
    });
}

ZMARMSuite MakeTable() {
    ZMARMSuite table{};
    table.IsAvailable = IsAvailable;
    table.GetAssetUrl = GetAssetUrl;
    return table;
}

const ZMARMSuite kTable = MakeTable();

}  // namespace

void RegisterARMSuite(SuiteRegistry& registry) {
    registry.Add(ZM_ARM_SUITE_NAME, ZM_ARM_SUITE_VERSION, &kTable);
}

}  // namespace zm::host
