#include "suites/SuiteRegistrations.hpp"

#include "suites/SuiteGuard.hpp"

#include <zelmora/KRXTextResourcesSuites.h>

namespace zm::host {

namespace {

constexpr const char* kSuite = ZM_KRX_VERSION_INFO_SUITE_NAME;

ZMErr ZM_API GetMajorVersion(int32_t* major) {
    return GuardSuiteCall(kSuite, 0, [&](Runtime&) {
        RequireArguments(major);
        *major = KRX_ENGINE_MAJOR_VERSION;
    });
}

ZMErr ZM_API GetMinorVersion(int32_t* minor) {
    return GuardSuiteCall(kSuite, 1, [&](Runtime&) {
        RequireArguments(minor);
        *minor = KRX_ENGINE_MINOR_VERSION;
    });
}

const KRXVersionInfoSuite kTable = {
    GetMajorVersion,  // 0
    GetMinorVersion,  // 1
};

}  // namespace

void RegisterKRXVersionInfoSuite(SuiteRegistry& registry) {
    registry.Add(ZM_KRX_VERSION_INFO_SUITE_NAME, ZM_KRX_VERSION_INFO_SUITE_VERSION, &kTable);
}

}  // namespace zm::host
