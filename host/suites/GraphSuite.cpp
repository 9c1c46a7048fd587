#include <zelmora/ZMGraphSuite.h>

#include "suites/ArtHandles.hpp"
#include "suites/CurrentDocument.hpp"
#include "suites/SuiteGuard.hpp"
#include "suites/SuiteRegistrations.hpp"

namespace zm::host {

namespace {

ZMErr ZM_API IsGraph(ZMArtHandle art, ZMBool* isGraph) {
    return GuardSuiteCall(ZM_GRAPH_SUITE_NAME, 0, [&](Runtime& runtime) {
        CurrentDocument(runtime);
        RequireArguments(isGraph);
        *isGraph = ArtOf(art).graph ? 1 : 0;
    });
}

ZMGraphSuite MakeTable() {
    ZMGraphSuite table{};
    table.IsGraph = IsGraph;
    return table;
}

const ZMGraphSuite kTable = MakeTable();

}  // namespace

void RegisterGraphSuite(SuiteRegistry& registry) {
    registry.Add(ZM_GRAPH_SUITE_NAME, ZM_GRAPH_SUITE_VERSION, &kTable);
}

}  // namespace zm::host
