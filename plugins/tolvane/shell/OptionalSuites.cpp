#include "shell/OptionalSuites.hpp"

namespace tolvane {

const void* sLiveShapesSuite = nullptr;

namespace {

struct OptionalSuite {
    const char* name;
    int32_t version;
    const void** target;
};

const OptionalSuite kOptionalSuites[] = {
    {ZM_LIVE_SHAPES_SUITE_NAME, ZM_LIVE_SHAPES_SUITE_VERSION, &sLiveShapesSuite},
    {nullptr, 0, nullptr},
};

}  // namespace

void AcquireOptionalSuites(ZMBasicSuite* basic) {
    for (const OptionalSuite* row = kOptionalSuites; row->name != nullptr; ++row) {
        // A suite already held is not acquired twice, so one release balances it.
        if (row->target != nullptr && *row->target == nullptr) {
            basic->AcquireSuite(row->name, row->version, row->target);
        }
    }
}

void ReleaseOptionalSuites(ZMBasicSuite* basic) {
    for (const OptionalSuite* row = kOptionalSuites; row->name != nullptr; ++row) {
        if (row->target != nullptr && *row->target != nullptr) {
            basic->ReleaseSuite(row->name, row->version);
            *row->target = nullptr;
        }
    }
}

}  // namespace tolvane
