#pragma once

#include <zelmora/ZMTypes.h>

#include <memory>
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
class NotifierCenter {
public:
    Notifier& Add(ZMPluginRef plugin, std::string owner, std::string type);
    Notifier* Find(ZMNotifierHandle handle);
    ZMNotifierHandle HandleOf(const Notifier& notifier) const;
    // Active notifiers of that type, in the order they were added.
    std::vector<Notifier*> Subscribers(std::string_view type);
    const std::vector<std::unique_ptr<Notifier>>& All() const { return notifiers_; }
    void RemovePlugin(ZMPluginRef plugin);

private:
    std::vector<std::unique_ptr<Notifier>> notifiers_;
};

}  // namespace zm::host
