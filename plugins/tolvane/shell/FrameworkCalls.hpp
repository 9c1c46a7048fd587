#pragma once

#include <zelmora/ZMPluginFramework.h>

namespace tolvane {

// The "LMB Plugin Suite" operations the plug-in uses, always for its own description record.
// The suite is acquired on first use; if that fails, the operation returns the error.
ZMErr StartFramework();
ZMErr StopFramework();
ZMErr GetPluginRef(ZMPluginRef* ref);
ZMErr GetFrameworkData(const ZMFrameworkPluginData** data);
ZMErr AllocatePluginBlock(size_t size, void** block);
ZMErr FreePluginBlock(void* block);
// Gives the suite back; the next operation acquires it again. For unload, when the module's
// pointers are about to go.
void ReleaseFrameworkSuite();

}  // namespace tolvane
