#pragma once

#include <zelmora/ZMArtTypes.h>

#include <cstddef>
#include <memory>
#include <unordered_map>
#include <vector>

namespace zm::host {

class FaultPlan;

// Resizable memory blocks handed to plug-ins by handle. The handle stays the same for the
// block's life while the block itself may move when resized. The host keeps every live
// handle, so a handle it did not make is refused and a test can see what was not given back.
class MemoryHandles {
public:
    explicit MemoryHandles(FaultPlan& faults) : faults_(faults) {}
    MemoryHandles(const MemoryHandles&) = delete;
    MemoryHandles& operator=(const MemoryHandles&) = delete;

    // A zero-filled block; throws HostError(ZM_ERR_NO_MEMORY) when there is none, including
    // a failure the fault plan asks for.
    ZMMdMemoryHandle New(std::size_t size);
    // Every member below throws HostError(ZM_ERR_BAD_ARGUMENT) for a handle not live here.
    void Dispose(ZMMdMemoryHandle handle);
    std::size_t Size(ZMMdMemoryHandle handle);
    // Bytes beyond the old size are zero; the bytes kept keep their values.
    void Resize(ZMMdMemoryHandle handle, std::size_t size);
    void* Address(ZMMdMemoryHandle handle);

    std::size_t LiveHandles() const { return blocks_.size(); }

private:
    struct Block {
        std::vector<std::byte> bytes;
    };
    Block& Require(ZMMdMemoryHandle handle);

    FaultPlan& faults_;
    std::unordered_map<ZMMdMemoryHandle, std::unique_ptr<Block>> blocks_;
};

}  // namespace zm::host
