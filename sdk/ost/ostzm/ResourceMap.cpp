#include "ostzm/ResourceMap.hpp"

#include <filesystem>
#include <fstream>
#include <sstream>
#include <stdexcept>

namespace ostzm {

std::map<std::string, std::string> ReadResourceMap(const std::string& resourceFolder) {
    std::filesystem::path mapFile = std::filesystem::path(resourceFolder) / kResourceMapFileName;
    std::ifstream stream(mapFile, std::ios::binary);
    if (!stream) {
        throw std::runtime_error(mapFile.string() + ": cannot be read");
    }
    std::map<std::string, std::string> resources;
    std::string line;
    for (int lineNumber = 1; std::getline(stream, line); ++lineNumber) {
        if (!line.empty() && line.back() == '\r') {
            line.pop_back();
        }
        if (line.empty() || line.front() == '#') {
            continue;
        }
        std::istringstream fields(line);
        std::string name;
        std::string file;
        std::string extra;
        if (!(fields >> name >> file) || (fields >> extra)) {
            throw std::runtime_error(mapFile.string() + ":" + std::to_string(lineNumber) +
                                     ": expected a resource name and a file name");
        }
        resources[name] = (std::filesystem::path(resourceFolder) / file).string();
    }
    if (stream.bad()) {
        throw std::runtime_error(mapFile.string() + ": read error");
    }
    return resources;
}

}  // namespace ostzm
