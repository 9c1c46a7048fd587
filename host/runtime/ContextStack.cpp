#include "runtime/ContextStack.hpp"

namespace zm::host {

ZMAppContext ContextStack::Open(ZMPluginRef plugin) {
    uintptr_t id = nextId_++;
    open_.push_back({id, plugin});
    return reinterpret_cast<ZMAppContext>(id);
}

bool ContextStack::Close(ZMAppContext context) {
    if (open_.empty() || open_.back().id != reinterpret_cast<uintptr_t>(context)) {
        return false;
    }
    open_.pop_back();
    return true;
}

}  // namespace zm::host
