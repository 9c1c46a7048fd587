#include "suites/SuiteRegistrations.hpp"

#include "runtime/HostError.hpp"
#include "suites/CountedObjects.hpp"
#include "suites/SuiteGuard.hpp"
#include "suites/TextEngineObjects.hpp"

#include <zelmora/KRXPaintSuites.h>

namespace zm::host {

namespace {

constexpr const char* kSuite = ZM_ZMKRX_PAINT_SUITE_NAME;

ZMErr ZM_API GetZMFillStyle(KRXApplicationPaintRef paint, ZMFillStyle* style) {
    return GuardSuiteCall(kSuite, 0, [&](Runtime& runtime) {
        const ApplicationPaintObject& object = RequireObject(runtime, paint);
        RequireArguments(style);
        *style = object.style;
    });
}

// A paint keeps the colour of the caller's kind and whether it overprints; the record's other
// bytes are the caller's business and stay behind.
ZMErr ZM_API CreateKRXPaint(const ZMFillStyle* style, KRXApplicationPaintRef* paint) {
    return GuardSuiteCall(kSuite, 1, [&](Runtime& runtime) {
        RequireArguments(style, paint);
        if (style->color.kind < ZM_COLOR_GRAY || style->color.kind >= ZM_COLOR_NONE) {
            throw HostError(ZM_ERR_BAD_ARGUMENT, "a paint needs a colour");
        }
        ApplicationPaintObject object;
        object.style.color.kind = style->color.kind;
        object.style.color.c = style->color.c;
        object.style.overprint = style->overprint != 0 ? 1 : 0;
        *paint = AddCounted<KRXApplicationPaintRef>(runtime, object);
    });
}

const ZMKRXPaintSuite kTable = {
    GetZMFillStyle,  // 0
    CreateKRXPaint,  // 1
};

}  // namespace

void RegisterZMKRXPaintSuite(SuiteRegistry& registry) {
    registry.Add(ZM_ZMKRX_PAINT_SUITE_NAME, ZM_ZMKRX_PAINT_SUITE_VERSION, &kTable);
}

}  // namespace zm::host
