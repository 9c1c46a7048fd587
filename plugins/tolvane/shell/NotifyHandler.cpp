#include "shell/Handlers.hpp"

#include "shell/OptionalSuites.hpp"

#include <zelmora/ZMNotifierSuite.h>
#include <zelmora/ZMPluginMain.h>

#include <cstring>

namespace tolvane {

ZMErr ZM_API NotifyHandler(void* message) {
    auto& notification = *static_cast<ZMNotifierMessage*>(message);
    if (notification.type != nullptr &&
        std::strcmp(notification.type, ZM_NOTIFIER_APPLICATION_STARTED) == 0) {
        AcquireOptionalSuites(notification.d.basicSuite);
    }
    return ZM_ERR_NONE;  // notifications never fail
}

}  // namespace tolvane
