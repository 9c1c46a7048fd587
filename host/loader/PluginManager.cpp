#include "loader/PluginManager.hpp"

#include "runtime/ErrorText.hpp"
#include "runtime/Runtime.hpp"

#include <ostzm/PanelRegistry.hpp>
#include <ostzm/PluginBundleRegistry.hpp>

#include <algorithm>
#include <system_error>

namespace zm::host {

void PluginManager::Scan(const std::vector<std::filesystem::path>& folders) {
    for (const auto& folder : folders) {
        std::error_code error;
        if (!std::filesystem::is_directory(folder, error)) {
            continue;
        }
        std::vector<std::filesystem::path> bundles;
        try {
            for (const auto& entry : std::filesystem::directory_iterator(folder)) {
                if (entry.path().extension() == kBundleExtension) {
                    bundles.push_back(entry.path());
                }
            }
        } catch (const std::filesystem::filesystem_error& problem) {
            problems_.push_back({folder, std::string("cannot be listed: ") + problem.code().message()});
            continue;
        }
        std::sort(bundles.begin(), bundles.end());
        for (const auto& path : bundles) {
            try {
                plugins_.push_back(std::make_unique<LoadedPlugin>(OpenBundle(path)));
            } catch (const BundleError& problem) {
                problems_.push_back({path, problem.Reason()});
            } catch (const std::exception& problem) {
                problems_.push_back({path, problem.what()});
            }
        }
    }
}

LoadedPlugin& PluginManager::Adopt(PluginBundle bundle) {
    plugins_.push_back(std::make_unique<LoadedPlugin>(std::move(bundle)));
    return *plugins_.back();
}

ZMErr PluginManager::LoadCode(LoadedPlugin& plugin) {
    if (plugin.library.IsOpen()) {
        return ZM_ERR_NONE;
    }
    try {
        plugin.library =
            PluginLibrary(plugin.bundle.sharedObject, plugin.bundle.properties.entryPoint);
    } catch (const LibraryError& error) {
        problems_.push_back({plugin.bundle.folder, error.what()});
        return ZM_ERR_NOT_FOUND;
    }
    // Panels the plug-in makes find their resources and texts through the toolkit.
    ostzm::PluginBundleRegistry::Register(
        plugin.Ref(), plugin.bundle.folder.string(),
        [](const std::string& key) { return Runtime::Current().localizer.Localize(key); });
    return ZM_ERR_NONE;
}

ZMErr PluginManager::Start(LoadedPlugin& plugin) {
    if (ZMErr error = LoadCode(plugin); error != ZM_ERR_NONE) {
        return error;
    }
    ZMMessageRecord access{};
    ZMErr result = plugin.Send(ZM_CALLER_ACCESS, ZM_SELECTOR_RELOAD, access);
    if (result == ZM_ERR_NONE) {
        ZMMessageRecord startup{};
        result = plugin.Send(ZM_CALLER_PLUGIN, ZM_SELECTOR_STARTUP, startup);
    }
    if (result != ZM_ERR_NONE) {
        problems_.push_back(
            {plugin.bundle.folder, "start-up failed with code " + ErrorText(result)});
        Unload(plugin);
    }
    return result;
}

int PluginManager::StartAll() {
    int started = 0;
    std::vector<LoadedPlugin*> failed;
    for (auto& plugin : plugins_) {
        if (plugin->library.IsOpen()) {
            ++started;
        } else if (Start(*plugin) == ZM_ERR_NONE) {
            ++started;
        } else {
            failed.push_back(plugin.get());
        }
    }
    for (LoadedPlugin* plugin : failed) {
        Remove(*plugin);
    }
    return started;
}

ZMErr PluginManager::Stop(LoadedPlugin& plugin) {
    ZMMessageRecord shutdown{};
    ZMErr result = plugin.Send(ZM_CALLER_PLUGIN, ZM_SELECTOR_SHUTDOWN, shutdown);
    ZMErr unload = Unload(plugin);
    ForgetRegistrations(plugin);
    return result != ZM_ERR_NONE ? result : unload;
}

void PluginManager::StopAll() {
    // Last started, first stopped, as a host quits.
    for (auto it = plugins_.rbegin(); it != plugins_.rend(); ++it) {
        if ((*it)->library.IsOpen()) {
            Stop(**it);
        }
    }
}

ZMErr PluginManager::Unload(LoadedPlugin& plugin) {
    if (!plugin.library.IsOpen()) {
        return ZM_ERR_NONE;
    }
    // The plug-in's panels close with its code, as windows do when a module goes: now, while
    // the code that destroys them is still loaded. The plug-in only drops its pointers.
    ostzm::PanelRegistry::ClosePanelsOf(plugin.Ref());
    ZMMessageRecord unload{};
    ZMErr result = plugin.Send(ZM_CALLER_ACCESS, ZM_SELECTOR_UNLOAD, unload);
    plugin.library.Close();
    ostzm::PluginBundleRegistry::Unregister(plugin.Ref());
    // The description record lived in the code just unloaded.
    plugin.framework.description = nullptr;
    return result;
}

ZMErr PluginManager::Reload(LoadedPlugin& plugin) {
    if (plugin.library.IsOpen()) {
        return ZM_ERR_NONE;
    }
    if (ZMErr error = LoadCode(plugin); error != ZM_ERR_NONE) {
        return error;
    }
    ZMMessageRecord access{};
    return plugin.Send(ZM_CALLER_ACCESS, ZM_SELECTOR_RELOAD, access);
}

ZMErr PluginManager::Notify(const char* type, void* notifyData) {
    Runtime& runtime = Runtime::Current();
    ZMErr first = ZM_ERR_NONE;
    for (Notifier* notifier : runtime.notifiers.Subscribers(type)) {
        LoadedPlugin* plugin = Find(notifier->plugin);
        if (plugin == nullptr || !plugin->library.IsOpen()) {
            continue;
        }
        ZMNotifierMessage message{};
        message.notifier = runtime.notifiers.HandleOf(*notifier);
        message.type = notifier->type.c_str();
        message.notifyData = notifyData;
        ZMErr result = plugin->Send(ZM_CALLER_NOTIFIER, ZM_SELECTOR_NOTIFY, message);
        if (first == ZM_ERR_NONE) {
            first = result;
        }
    }
    return first;
}

ZMErr PluginManager::RunMenuItem(ZMMenuItemHandle item) {
    MenuItem* menuItem = Runtime::Current().menus.Find(item);
    LoadedPlugin* plugin = menuItem ? Find(menuItem->plugin) : nullptr;
    if (plugin == nullptr) {
        return ZM_ERR_NOT_FOUND;
    }
    ZMMenuMessage message{};
    message.menuItem = item;
    return plugin->Send(ZM_CALLER_MENU, ZM_SELECTOR_GO_MENU, message);
}

LoadedPlugin* PluginManager::Find(ZMPluginRef ref) {
    for (auto& plugin : plugins_) {
        if (plugin->Ref() == ref) {
            return plugin.get();
        }
    }
    return nullptr;
}

LoadedPlugin* PluginManager::FindByDescription(const ZMPluginDescription* description) {
    for (auto& plugin : plugins_) {
        if (description != nullptr && plugin->framework.description == description) {
            return plugin.get();
        }
    }
    return nullptr;
}

LoadedPlugin* PluginManager::FindByName(const std::string& name) {
    for (auto& plugin : plugins_) {
        if (plugin->Name() == name) {
            return plugin.get();
        }
    }
    return nullptr;
}

void PluginManager::ForgetRegistrations(LoadedPlugin& plugin) {
    Runtime& runtime = Runtime::Current();
    runtime.menus.RemovePlugin(plugin.Ref());
    runtime.notifiers.RemovePlugin(plugin.Ref());
}

void PluginManager::Remove(LoadedPlugin& plugin) {
    ForgetRegistrations(plugin);
    std::erase_if(plugins_, [&](const auto& p) { return p.get() == &plugin; });
}

std::vector<std::filesystem::path> DefaultPluginFolders() {
    return {ZELMORA_BUILD_PLUGIN_DIR, ZELMORA_INSTALL_PLUGIN_DIR};
}

}  // namespace zm::host
