#include "suites/SuiteRegistrations.hpp"

#include "suites/CountedObjects.hpp"
#include "suites/TextEngineObjects.hpp"

#include <zelmora/KRXPaintSuites.h>

namespace zm::host {

namespace {

constexpr const char* kSuite = ZM_KRX_APPLICATION_PAINT_SUITE_NAME;

ZMErr ZM_API AddRef(KRXApplicationPaintRef paint) {
    return RetainEntry<ApplicationPaintObject>(kSuite, 0, paint);
}

ZMErr ZM_API Release(KRXApplicationPaintRef paint) {
    return ReleaseEntry<ApplicationPaintObject>(kSuite, 1, paint);
}

const KRXApplicationPaintSuite kTable = {
    AddRef,   // 0
    Release,  // 1
};

}  // namespace

void RegisterKRXApplicationPaintSuite(SuiteRegistry& registry) {
    registry.Add(ZM_KRX_APPLICATION_PAINT_SUITE_NAME, ZM_KRX_APPLICATION_PAINT_SUITE_VERSION,
                 &kTable);
}

}  // namespace zm::host
