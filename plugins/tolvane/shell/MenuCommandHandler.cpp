#include "shell/Handlers.hpp"

namespace tolvane {

// The "&Document Info" item shows and hides the panel, which is built in the panel folder;
// until the panel exists there is nothing to toggle.
ZMErr ZM_API MenuCommandHandler(void* /*message*/) { return ZM_ERR_NONE; }

}  // namespace tolvane
