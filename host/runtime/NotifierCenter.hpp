#pragma once

#include "runtime/HandleList.hpp"

#include <zelmora/ZMTypes.h>

#include <string>
#include <string_view>
#include <vector>

namespace zm::host {

struct Notifier {
    ZMPluginRef plugin = nullptr;
    std::string owner;
    std::string type;
    bool active = true;
};

// Who listens to which notifications.
class NotifierCenter : public HandleList<Notifier, ZMNotifierHandle> {
public:
    Notifier& Add(ZMPluginRef plugin, std::string owner, std::string type);
    // Active notifiers of that type, in the order they were added.
    std::vector<Notifier*> Subscribers(std::string_view type);
};

}  // namespace zm::host
