#pragma once

#include <zelmora/ZMTypes.h>

namespace tolvane {

// Message handlers, called by the framework with the message record.
ZMErr ZM_API StartupHandler(void* message);
ZMErr ZM_API ShutdownHandler(void* message);
ZMErr ZM_API ReloadHandler(void* message);
ZMErr ZM_API UnloadHandler(void* message);
ZMErr ZM_API MenuCommandHandler(void* message);
ZMErr ZM_API NotifyHandler(void* message);

// Registration results, called with a ZMRegistrationMessage.
ZMErr ZM_API MenuItemCreatedHandler(void* message);
ZMErr ZM_API NotifierCreatedHandler(void* message);

}  // namespace tolvane
