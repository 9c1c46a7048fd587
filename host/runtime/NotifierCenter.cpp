#include "runtime/NotifierCenter.hpp"

namespace zm::host {

Notifier& NotifierCenter::Add(ZMPluginRef plugin, std::string owner, std::string type) {
    notifiers_.push_back(
        std::make_unique<Notifier>(Notifier{plugin, std::move(owner), std::move(type), true}));
    return *notifiers_.back();
}

Notifier* NotifierCenter::Find(ZMNotifierHandle handle) {
    for (auto& notifier : notifiers_) {
        if (reinterpret_cast<ZMNotifierHandle>(notifier.get()) == handle) {
            return notifier.get();
        }
    }
    return nullptr;
}

ZMNotifierHandle NotifierCenter::HandleOf(const Notifier& notifier) const {
    return reinterpret_cast<ZMNotifierHandle>(const_cast<Notifier*>(&notifier));
}

std::vector<Notifier*> NotifierCenter::Subscribers(std::string_view type) {
    std::vector<Notifier*> result;
    for (auto& notifier : notifiers_) {
        if (notifier->active && notifier->type == type) {
            result.push_back(notifier.get());
        }
    }
    return result;
}

void NotifierCenter::RemovePlugin(ZMPluginRef plugin) {
    std::erase_if(notifiers_, [plugin](const auto& n) { return n->plugin == plugin; });
}

}  // namespace zm::host
