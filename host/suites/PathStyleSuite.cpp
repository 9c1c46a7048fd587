#include <zelmora/ZMPathStyleSuite.h>

#include "suites/ArtHandles.hpp"
#include "suites/ColorRecords.hpp"
#include "suites/CurrentDocument.hpp"
#include "suites/SuiteGuard.hpp"
#include "suites/SuiteRegistrations.hpp"

namespace zm::host {

namespace {

ZMPathStyle ToPathStyleRecord(const document::PathStyle& style) {
    ZMPathStyle record{};
    record.fillPaint = style.fillPaint ? 1 : 0;
    record.fill.color = ToColorRecord(style.fill);
    record.strokePaint = style.strokePaint ? 1 : 0;
    record.stroke.color = ToColorRecord(style.stroke);
    record.stroke.width = style.strokeWidth;
    record.clip = style.clip ? 1 : 0;
    record.evenOdd = style.evenOdd ? 1 : 0;
    return record;
}

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
