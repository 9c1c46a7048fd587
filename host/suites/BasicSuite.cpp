#include "suites/BasicSuite.hpp"

#include "suites/SuiteGuard.hpp"

#include <cstring>

namespace zm::host {

namespace {

ZMErr ZM_API AcquireSuite(const char* name, int32_t version, const void** suite) {
    return GuardSuiteCall(kBasicSuiteName, 0, [&](Runtime& runtime) {
        RequireArguments(name, suite);
        if (ZMErr error = runtime.suites.Acquire(name, version, suite); error != ZM_ERR_NONE) {
            throw HostError(error);
        }
    });
}

ZMErr ZM_API ReleaseSuite(const char* name, int32_t version) {
    return GuardSuiteCall(kBasicSuiteName, 1, [&](Runtime& runtime) {
        RequireArguments(name);
        if (ZMErr error = runtime.suites.Release(name, version); error != ZM_ERR_NONE) {
            throw HostError(error);
        }
    });
}

int32_t ZM_API IsEqual(const char* first, const char* second) {
    if (first == nullptr || second == nullptr) {
        return first == second ? 1 : 0;
    }
    return std::strcmp(first, second) == 0 ? 1 : 0;
}

ZMErr ZM_API AllocateBlock(size_t size, void** block) {
    return GuardSuiteCall(kBasicSuiteName, 3, [&](Runtime& runtime) {
        RequireArguments(block);
        *block = runtime.blocks.Allocate(size);
        if (*block == nullptr) {
            throw HostError(ZM_ERR_NO_MEMORY);
        }
    });
}

ZMErr ZM_API FreeBlock(void* block) {
    return GuardSuiteCall(kBasicSuiteName, 4, [&](Runtime& runtime) {
        if (block != nullptr && !runtime.blocks.Free(block)) {
            throw HostError(ZM_ERR_BAD_ARGUMENT, "not a block of this host");
        }
    });
}

const ZMBasicSuite kTable = {AcquireSuite, ReleaseSuite, IsEqual, AllocateBlock, FreeBlock};

}  // namespace

const ZMBasicSuite& HostBasicSuite() { return kTable; }

}  // namespace zm::host
