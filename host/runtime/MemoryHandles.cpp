#include "runtime/MemoryHandles.hpp"

#include "runtime/FaultPlan.hpp"
#include "runtime/HostError.hpp"

namespace zm::host {

namespace {

void CheckAllocation(FaultPlan& faults) {
    if (faults.ConsumeAllocation()) {
        throw HostError(ZM_ERR_NO_MEMORY, "no memory for a memory handle");
    }
}

}  // namespace

ZMMdMemoryHandle MemoryHandles::New(std::size_t size) {
    CheckAllocation(faults_);
    auto block = std::make_unique<Block>();
    block->bytes.resize(size);
    auto handle = reinterpret_cast<ZMMdMemoryHandle>(block.get());
    blocks_.emplace(handle, std::move(block));
    return handle;
}

void MemoryHandles::Dispose(ZMMdMemoryHandle handle) {
    Require(handle);
    blocks_.erase(handle);
}

std::size_t MemoryHandles::Size(ZMMdMemoryHandle handle) { return Require(handle).bytes.size(); }

void MemoryHandles::Resize(ZMMdMemoryHandle handle, std::size_t size) {
    Block& block = Require(handle);
    if (size > block.bytes.size()) {
        CheckAllocation(faults_);
    }
    block.bytes.resize(size);
}

void* MemoryHandles::Address(ZMMdMemoryHandle handle) {
    // A block of no bytes still has an address of its own, never null.
    std::vector<std::byte>& bytes = Require(handle).bytes;
    if (bytes.capacity() == 0) {
        bytes.reserve(1);
    }
    return bytes.data();
}

MemoryHandles::Block& MemoryHandles::Require(ZMMdMemoryHandle handle) {
    auto found = blocks_.find(handle);
    if (found == blocks_.end()) {
        throw HostError(ZM_ERR_BAD_ARGUMENT, "not a memory handle of this host");
    }
    return *found->second;
}

}  // namespace zm::host
