#pragma once

#include <zelmora/ZMArtTypes.h>
#include <zelmora/ZMTypes.h>

#include <cstddef>

namespace tolvane {

// A zero-filled block of the host's memory suite that is never resized, so its address stays
// valid for as long as the handle lives. On failure nothing is held and the host's code is
// returned.
ZMErr NewFixedBlock(std::size_t size, ZMMdMemoryHandle& handle, void*& block);

}  // namespace tolvane
