#pragma once

#include <zelmora/ZMTypes.h>

#include <cstdint>
#include <vector>

namespace zm::host {

// Application contexts a plug-in opens around its work. They nest; each must be closed,
// innermost first. Depth() == 0 after a plug-in's call means none leaked.
class ContextStack {
public:
    ZMAppContext Open(ZMPluginRef plugin);
    // False when context is not the innermost open one (nothing is closed then).
    bool Close(ZMAppContext context);
    int32_t Depth() const { return static_cast<int32_t>(open_.size()); }
    int64_t TotalOpened() const { return nextId_ - 1; }

private:
    struct Entry {
        uintptr_t id;
        ZMPluginRef plugin;
    };
    std::vector<Entry> open_;
    uintptr_t nextId_ = 1;
};

}  // namespace zm::host
