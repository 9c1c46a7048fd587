#pragma once

#include "ostcore/Export.hpp"
#include "ostcore/Localize.hpp"

#include <zelmora/ZMTypes.h>

#include <map>
#include <optional>
#include <string>

namespace ostzm {

// What the toolkit knows of a plug-in: where its bundle is, the resources its map names, and
// how its localizable keys are turned into text.
struct PluginBundleInfo {
    std::string folder;                           // the bundle folder "Name.zpl"
    std::map<std::string, std::string> resources;  // resource name -> file
    ostcore::Localizer localizer;                 // empty: keys show their default text
};

// The host tells the toolkit, by plug-in reference, where each plug-in's bundle is before the
// plug-in can make panels, and forgets it when the plug-in goes. Panels look their layout and
// menu resources up here, so the toolkit never sees the host's own records.
class OST_API PluginBundleRegistry {
public:
    // Reads the bundle's resource map (see ReadResourceMap; a bundle without one has no
    // resources) and replaces what was known of `plugin`. Throws std::runtime_error for a
    // malformed map.
    static void Register(ZMPluginRef plugin, const std::string& bundleFolder,
                         ostcore::Localizer localizer);
    static void Unregister(ZMPluginRef plugin);
    static std::optional<PluginBundleInfo> Find(ZMPluginRef plugin);
    // The file carrying a plug-in's resource; empty when the plug-in or the resource is
    // unknown.
    static std::string ResourceFile(ZMPluginRef plugin, const std::string& resourceName);
};

}  // namespace ostzm
