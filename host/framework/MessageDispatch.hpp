#pragma once

#include <zelmora/ZMPluginFramework.h>

namespace zm::host {

// "LMB Basic Suite" entry 0: decodes one message and calls the plug-in's handlers.
ZMErr ZM_API DispatchMessage(const ZMPluginDescription* plugin, const char* caller,
                             const char* selector, void* message);

}  // namespace zm::host
