#include "loader/LoadedPlugin.hpp"

#include "suites/BasicSuite.hpp"

namespace zm::host {

void LoadedPlugin::FillHeader(ZMMessageRecord& header) {
    header.signature = static_cast<uint32_t>(ZM_MESSAGE_SIGNATURE);
    header.reserved = 0;
    header.self = Ref();
    header.globals = globals;
    header.basicSuite = const_cast<ZMBasicSuite*>(&HostBasicSuite());
}

ZMErr LoadedPlugin::SendRaw(const char* caller, const char* selector, void* message) {
    if (!library.IsOpen()) {
        return ZM_ERR_NOT_STARTED;
    }
    return library.Entry()(caller, selector, message);
}

}  // namespace zm::host
