#include "runtime/NotifierCenter.hpp"

namespace zm::host {

Notifier& NotifierCenter::Add(ZMPluginRef plugin, std::string owner, std::string type) {
    return HandleList::Add(Notifier{plugin, std::move(owner), std::move(type), true});
}

std::vector<Notifier*> NotifierCenter::Subscribers(std::string_view type) {
    std::vector<Notifier*> result;
    for (const auto& notifier : All()) {
        if (notifier->active && notifier->type == type) {
            result.push_back(notifier.get());
        }
    }
    return result;
}

}  // namespace zm::host
