#include "loader/PluginBundle.hpp"

#include "loader/TextFile.hpp"

#include <ostzm/ResourceMap.hpp>

#include <cstdint>
#include <span>

namespace zm::host {

namespace {

constexpr const char* kPropertyListFile = "plugin.pipl";
constexpr const char* kStringsResource = "strings";

// The toolkit reads the map too (for panel resources), so there is one reader of its format.
std::map<std::string, std::filesystem::path> ReadResourceMap(
    const std::filesystem::path& resourceFolder) {
    std::map<std::string, std::filesystem::path> resources;
    for (auto& [name, file] : ostzm::ReadResourceMap(resourceFolder.string())) {
        resources.emplace(name, file);
    }
    return resources;
}

}  // namespace

PluginBundle OpenBundle(const std::filesystem::path& folder) {
    auto fail = [&](const std::string& reason) -> BundleError {
        return BundleError(folder, reason);
    };
    if (!std::filesystem::is_directory(folder)) {
        throw fail("not a folder");
    }
    PluginBundle bundle;
    bundle.folder = folder;
    std::filesystem::path propertyList = folder / kPropertyListFile;
    if (!std::filesystem::is_regular_file(propertyList)) {
        throw fail(std::string("no property list ") + kPropertyListFile);
    }
    try {
        std::string bytes = ReadTextFile(propertyList);
        bundle.properties = ParsePropertyList(std::span<const std::uint8_t>(
            reinterpret_cast<const std::uint8_t*>(bytes.data()), bytes.size()));
    } catch (const PropertyListError& error) {
        throw fail(std::string(kPropertyListFile) + ": " + error.what());
    } catch (const std::exception& error) {
        throw fail(error.what());
    }
    bundle.sharedObject = folder / (folder.stem().string() + ".so");
    if (!std::filesystem::is_regular_file(bundle.sharedObject)) {
        throw fail("no shared object " + bundle.sharedObject.filename().string());
    }
    try {
        bundle.resources = ReadResourceMap(folder / ostzm::kResourceFolderName);
        auto strings = bundle.resources.find(kStringsResource);
        if (strings != bundle.resources.end()) {
            bundle.strings = StringTable::Read(strings->second);
        }
    } catch (const std::exception& error) {
        throw fail(std::string("bad resources: ") + error.what());
    }
    return bundle;
}

}  // namespace zm::host
