#include "ostzm/PluginBundleRegistry.hpp"

#include "ostzm/ResourceMap.hpp"

#include <filesystem>
#include <mutex>

namespace ostzm {

namespace {

struct Bundles {
    std::mutex mutex;
    std::map<ZMPluginRef, PluginBundleInfo> byPlugin;
};

Bundles& TheBundles() {
    static Bundles bundles;
    return bundles;
}

}  // namespace

void PluginBundleRegistry::Register(ZMPluginRef plugin, const std::string& bundleFolder,
                                    ostcore::Localizer localizer) {
    PluginBundleInfo info;
    info.folder = bundleFolder;
    info.localizer = std::move(localizer);
    std::filesystem::path resourceFolder = std::filesystem::path(bundleFolder) / kResourceFolderName;
    if (std::filesystem::exists(resourceFolder / kResourceMapFileName)) {
        info.resources = ReadResourceMap(resourceFolder.string());
    }
    Bundles& bundles = TheBundles();
    std::lock_guard lock(bundles.mutex);
    bundles.byPlugin[plugin] = std::move(info);
}

void PluginBundleRegistry::Unregister(ZMPluginRef plugin) {
    Bundles& bundles = TheBundles();
    std::lock_guard lock(bundles.mutex);
    bundles.byPlugin.erase(plugin);
}

std::optional<PluginBundleInfo> PluginBundleRegistry::Find(ZMPluginRef plugin) {
    Bundles& bundles = TheBundles();
    std::lock_guard lock(bundles.mutex);
    auto found = bundles.byPlugin.find(plugin);
    if (found == bundles.byPlugin.end()) {
        return std::nullopt;
    }
    return found->second;
}

std::string PluginBundleRegistry::ResourceFile(ZMPluginRef plugin,
                                               const std::string& resourceName) {
    std::optional<PluginBundleInfo> info = Find(plugin);
    if (!info) {
        return {};
    }
    auto found = info->resources.find(resourceName);
    return found == info->resources.end() ? std::string() : found->second;
}

}  // namespace ostzm
