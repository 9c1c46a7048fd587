#include <zelmora/ZMPathStyleSuite.h>

#include "suites/ArtHandles.hpp"
#include "suites/ColorRecords.hpp"
#include "suites/CurrentDocument.hpp"
#include "suites/SuiteGuard.hpp"
#include "suites/SuiteRegistrations.hpp"

namespace zm::host {

namespace {

ZMErr ZM_API GetPathStyle(ZMArtHandle art, ZMPathStyle* style) {
    return GuardSuiteCall(ZM_PATH_STYLE_SUITE_NAME, 0, [&](Runtime& runtime) {
        CurrentDocument(runtime);
        RequireArguments(style);
        *style = ToPathStyleRecord(ArtOf(art).style);
    });
}

ZMPathStyleSuite MakeTable() {
    ZMPathStyleSuite table{};
    table.GetPathStyle = GetPathStyle;
    return table;
}

const ZMPathStyleSuite kTable = MakeTable();

}  // namespace

void RegisterPathStyleSuite(SuiteRegistry& registry) {
    registry.Add(ZM_PATH_STYLE_SUITE_NAME, ZM_PATH_STYLE_SUITE_VERSION, &kTable);
}

}  // namespace zm::host
