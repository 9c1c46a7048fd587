#include "shell/FixedBlock.hpp"

#include "shell/SuiteSet.hpp"

namespace tolvane {

ZMErr NewFixedBlock(std::size_t size, ZMMdMemoryHandle& handle, void*& block) {
    handle = nullptr;
    block = nullptr;
    ZMMdMemoryHandle made = nullptr;
    if (ZMErr error = sMdMemorySuite->NewHandleClear(size, &made);
        error != ZM_ERR_NONE) {
        return error;
    }
    void* address = nullptr;
    if (ZMErr error = sMdMemorySuite->MdMemoryHandleDeref(made, &address);
        error != ZM_ERR_NONE) {
        sMdMemorySuite->DisposeHandle(made);
        return error;
    }
    handle = made;
    block = address;
    return ZM_ERR_NONE;
}

}  // namespace tolvane
