#include "loader/PluginBundle.hpp"

#include "loader/TextFile.hpp"

#include <cstdint>
#include <span>
#include <sstream>

namespace zm::host {

namespace {

constexpr const char* kPropertyListFile = "plugin.pipl";
constexpr const char* kResourceFolder = "Resources";
constexpr const char* kResourceMapFile = "resources.map";
constexpr const char* kStringsResource = "strings";

std::map<std::string, std::filesystem::path> ReadResourceMap(
    const std::filesystem::path& resourceFolder) {
    std::filesystem::path mapFile = resourceFolder / kResourceMapFile;
    std::map<std::string, std::filesystem::path> resources;
    ForEachLine(ReadTextFile(mapFile), [&](std::string_view line, int lineNumber) {
        if (line.empty() || line.front() == '#') {
            return;
        }
        std::istringstream fields{std::string(line)};
        std::string name;
        std::string file;
        std::string extra;
        if (!(fields >> name >> file) || (fields >> extra)) {
            throw std::runtime_error(mapFile.string() + ":" + std::to_string(lineNumber) +
                                     ": expected a resource name and a file name");
        }
        resources[name] = resourceFolder / file;
    });
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
        bundle.resources = ReadResourceMap(folder / kResourceFolder);
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
