#pragma once

#include "loader/LoadedPlugin.hpp"

#include <filesystem>
#include <memory>
#include <string>
#include <vector>

namespace zm::host {

// A bundle the host skipped, and why.
struct BundleProblem {
    std::filesystem::path bundle;
    std::string reason;
};

// The plug-ins of a host session and the message sequence they receive:
// load: "HV Access"/"Reload", then "HV Plugin"/"Startup" (the framework registers the
// declared menu items and notifiers inside it); quit: "HV Plugin"/"Shutdown", then
// "HV Access"/"Unload".
class PluginManager {
public:
    PluginManager() = default;
    PluginManager(const PluginManager&) = delete;
    PluginManager& operator=(const PluginManager&) = delete;

    // Opens every "*.zpl" folder of the folders, in name order; a malformed bundle is
    // recorded in Problems() and skipped. A missing folder is skipped silently.
    void Scan(const std::vector<std::filesystem::path>& folders);
    // A bundle whose code is already in this process (host tests); never loaded.
    LoadedPlugin& Adopt(PluginBundle bundle);

    // Loads every scanned plug-in; a plug-in that fails to load or start is recorded as a
    // problem, given its unload message and removed. Returns the number started.
    int StartAll();
    // Loads the code, sends the reload and start-up messages. On failure the code is
    // unloaded again (after its unload message) and the error returned.
    ZMErr Start(LoadedPlugin& plugin);
    // Shut-down and unload messages, then the code goes.
    ZMErr Stop(LoadedPlugin& plugin);
    void StopAll();

    // Unload message, then the code goes; the globals block stays with the host.
    ZMErr Unload(LoadedPlugin& plugin);
    // Loads the code again and sends the reload message with the kept globals block.
    ZMErr Reload(LoadedPlugin& plugin);

    // Sends the notification to every active subscriber, in subscription order. Returns the
    // first non-zero code a plug-in answered with (delivery goes on regardless).
    ZMErr Notify(const char* type, void* notifyData);
    // ZM_ERR_NOT_FOUND for an item no plug-in owns.
    ZMErr RunMenuItem(ZMMenuItemHandle item);

    LoadedPlugin* Find(ZMPluginRef ref);
    LoadedPlugin* FindByDescription(const ZMPluginDescription* description);
    LoadedPlugin* FindByName(const std::string& name);
    const std::vector<std::unique_ptr<LoadedPlugin>>& Plugins() const { return plugins_; }
    const std::vector<BundleProblem>& Problems() const { return problems_; }

private:
    ZMErr LoadCode(LoadedPlugin& plugin);
    // Its menu items and notifiers go with it.
    void ForgetRegistrations(LoadedPlugin& plugin);
    void Remove(LoadedPlugin& plugin);

    std::vector<std::unique_ptr<LoadedPlugin>> plugins_;
    std::vector<BundleProblem> problems_;
};

// The folders searched by default: the build tree's and the install prefix's.
std::vector<std::filesystem::path> DefaultPluginFolders();

}  // namespace zm::host
