#include <zelmora/ZMLiveShapesSuite.h>

#include "suites/ArtHandles.hpp"
#include "suites/CurrentDocument.hpp"
#include "suites/SuiteGuard.hpp"
#include "suites/SuiteRegistrations.hpp"

namespace zm::host {

namespace {

// The model's kinds carry the SDK's codes.
static_assert(static_cast<int32_t>(document::LiveShapeKind::Rectangle) == ZM_LIVE_SHAPE_RECTANGLE);
static_assert(static_cast<int32_t>(document::LiveShapeKind::Ellipse) == ZM_LIVE_SHAPE_ELLIPSE);
static_assert(static_cast<int32_t>(document::LiveShapeKind::Polygon) == ZM_LIVE_SHAPE_POLYGON);

ZMErr ZM_API IsLiveShape(ZMArtHandle art, ZMBool* isLiveShape) {
    return GuardSuiteCall(ZM_LIVE_SHAPES_SUITE_NAME, 0, [&](Runtime& runtime) {
        CurrentDocument(runtime);
        RequireArguments(isLiveShape);
        *isLiveShape = ArtOf(art).liveShape.has_value() ? 1 : 0;
    });
}

ZMErr ZM_API GetLiveShapeKind(ZMArtHandle art, ZMLiveShapeKind* kind) {
    return GuardSuiteCall(ZM_LIVE_SHAPES_SUITE_NAME, 1, [&](Runtime& runtime) {
        CurrentDocument(runtime);
        RequireArguments(kind);
        const document::Art& shape = ArtOf(art);
        if (!shape.liveShape) {
            throw HostError(ZM_ERR_NOT_FOUND, "the art is not a live shape");
        }
        *kind = static_cast<ZMLiveShapeKind>(shape.liveShape->kind);
    });
}

ZMLiveShapesSuite MakeTable() {
    ZMLiveShapesSuite table{};
    table.IsLiveShape = IsLiveShape;
    table.GetLiveShapeKind = GetLiveShapeKind;
    return table;
}

const ZMLiveShapesSuite kTable = MakeTable();

}  // namespace

void RegisterLiveShapesSuite(SuiteRegistry& registry) {
    registry.Add(ZM_LIVE_SHAPES_SUITE_NAME, ZM_LIVE_SHAPES_SUITE_VERSION, &kTable);
}

}  // namespace zm::host
