#include <zelmora/ZMMdMemorySuite.h>

#include "suites/SuiteGuard.hpp"
#include "suites/SuiteRegistrations.hpp"

namespace zm::host {

namespace {

// Every block is zero-filled, so the plain and the clearing entry differ only in what they
// promise.
ZMErr ZM_API NewHandle(size_t size, ZMMdMemoryHandle* handle) {
    return GuardSuiteCall(ZM_MD_MEMORY_SUITE_NAME, 0, [&](Runtime& runtime) {
        RequireArguments(handle);
        *handle = runtime.memory.New(size);
    });
}

ZMErr ZM_API NewHandleClear(size_t size, ZMMdMemoryHandle* handle) {
    return GuardSuiteCall(ZM_MD_MEMORY_SUITE_NAME, 1, [&](Runtime& runtime) {
        RequireArguments(handle);
        *handle = runtime.memory.New(size);
    });
}

ZMErr ZM_API DisposeHandle(ZMMdMemoryHandle handle) {
    return GuardSuiteCall(ZM_MD_MEMORY_SUITE_NAME, 2, [&](Runtime& runtime) {
        if (handle != nullptr) {
            runtime.memory.Dispose(handle);
        }
    });
}

ZMErr ZM_API GetHandleSize(ZMMdMemoryHandle handle, size_t* size) {
    return GuardSuiteCall(ZM_MD_MEMORY_SUITE_NAME, 3, [&](Runtime& runtime) {
        RequireArguments(size);
        *size = runtime.memory.Size(handle);
    });
}

ZMErr ZM_API SetHandleSize(ZMMdMemoryHandle handle, size_t size) {
    return GuardSuiteCall(ZM_MD_MEMORY_SUITE_NAME, 4,
                          [&](Runtime& runtime) { runtime.memory.Resize(handle, size); });
}

ZMErr ZM_API MdMemoryHandleDeref(ZMMdMemoryHandle handle, void** block) {
    return GuardSuiteCall(ZM_MD_MEMORY_SUITE_NAME, 5, [&](Runtime& runtime) {
        RequireArguments(block);
        *block = runtime.memory.Address(handle);
    });
}

ZMMdMemorySuite MakeTable() {
    ZMMdMemorySuite table{};
    table.NewHandle = NewHandle;
    table.NewHandleClear = NewHandleClear;
    table.DisposeHandle = DisposeHandle;
    table.GetHandleSize = GetHandleSize;
    table.SetHandleSize = SetHandleSize;
    table.MdMemoryHandleDeref = MdMemoryHandleDeref;
    return table;
}

const ZMMdMemorySuite kTable = MakeTable();

}  // namespace

void RegisterMdMemorySuite(SuiteRegistry& registry) {
    registry.Add(ZM_MD_MEMORY_SUITE_NAME, ZM_MD_MEMORY_SUITE_VERSION, &kTable);
}

}  // namespace zm::host
