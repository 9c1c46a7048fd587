#pragma once

#include "loader/PropertyList.hpp"
#include "loader/StringTable.hpp"

#include <filesystem>
#include <map>
#include <stdexcept>
#include <string>

namespace zm::host {

// A plug-in bundle folder "Name.zpl/": the shared object "Name.so", the property list
// "plugin.pipl", and "Resources/" with the resource map "resources.map", which names the
// file of each resource ("strings" is the string table).
struct PluginBundle {
    std::filesystem::path folder;
    std::filesystem::path sharedObject;
    PropertyList properties;
    std::map<std::string, std::filesystem::path> resources;  // resource name -> file
    StringTable strings;
};

// What is wrong with a bundle; the message names the bundle folder and the reason.
class BundleError : public std::runtime_error {
public:
    BundleError(const std::filesystem::path& bundle, const std::string& reason)
        : std::runtime_error(bundle.string() + ": " + reason), reason_(reason) {}
    const std::string& Reason() const { return reason_; }

private:
    std::string reason_;
};

inline constexpr const char* kBundleExtension = ".zpl";

// Reads and validates a bundle without loading its code. Throws BundleError.
PluginBundle OpenBundle(const std::filesystem::path& folder);

}  // namespace zm::host
