#include <zelmora/ZMVectorizeSuite.h>

#include "suites/ArtHandles.hpp"
#include "suites/CurrentDocument.hpp"
#include "suites/HostPluginNames.hpp"
#include "suites/SuiteGuard.hpp"
#include "suites/SuiteRegistrations.hpp"

namespace zm::host {

namespace {

ZMErr ZM_API IsTracingArt(ZMArtHandle art, ZMBool* isTracing) {
    return GuardSuiteCall(ZM_VECTORIZE_SUITE_NAME, 0, [&](Runtime& runtime) {
        CurrentDocument(runtime);
        RequireArguments(isTracing);
        const document::Art& object = ArtOf(art);
        bool tracing = object.Type() == document::ArtType::PluginGroup &&
                       object.pluginName == kImageTracePluginName;
        *isTracing = tracing ? 1 : 0;
    });
}

ZMVectorizeSuite MakeTable() {
    ZMVectorizeSuite table{};
    table.IsTracingArt = IsTracingArt;
    return table;
}

const ZMVectorizeSuite kTable = MakeTable();

}  // namespace

void RegisterVectorizeSuite(SuiteRegistry& registry) {
    registry.Add(ZM_VECTORIZE_SUITE_NAME, ZM_VECTORIZE_SUITE_VERSION, &kTable);
}

}  // namespace zm::host
