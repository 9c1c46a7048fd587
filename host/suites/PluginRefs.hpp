#pragma once

#include <zelmora/ZMTypes.h>

#include <string>
#include <vector>

#include "runtime/NamedPlugins.hpp"
#include "runtime/Runtime.hpp"

namespace zm::host {

// A plug-in reference names a loaded plug-in (its LoadedPlugin) or, for a plug-in that only
// documents name, the host's record of that name.
inline ZMPluginRef RefOf(Runtime& runtime, NamedPlugin& named) {
    if (LoadedPlugin* loaded = runtime.plugins.FindByName(named.name); loaded != nullptr) {
        return loaded->Ref();
    }
    return reinterpret_cast<ZMPluginRef>(&named);
}

// Every plug-in the host knows: the loaded ones in load order, then those only named.
inline std::vector<ZMPluginRef> KnownPlugins(Runtime& runtime) {
    std::vector<ZMPluginRef> known;
    for (const auto& loaded : runtime.plugins.Plugins()) {
        known.push_back(loaded->Ref());
    }
    for (const auto& named : runtime.namedPlugins.All()) {
        if (runtime.plugins.FindByName(named->name) == nullptr) {
            known.push_back(reinterpret_cast<ZMPluginRef>(named.get()));
        }
    }
    return known;
}

// The name behind a reference; null when the reference names no plug-in the host knows.
inline const std::string* NameOf(Runtime& runtime, ZMPluginRef plugin) {
    if (LoadedPlugin* loaded = runtime.plugins.Find(plugin); loaded != nullptr) {
        return &loaded->Name();
    }
    if (NamedPlugin* named = runtime.namedPlugins.Find(plugin); named != nullptr) {
        return &named->name;
    }
    return nullptr;
}

}  // namespace zm::host
