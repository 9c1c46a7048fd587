#pragma once

#include "ostcore/Export.hpp"

#include <map>
#include <string>

namespace ostzm {

// A bundle's resource file map, "Resources/resources.map": one resource per line, its name
// and the file in the Resources folder that carries it, separated by blanks; "#" starts a
// comment line and empty lines are skipped. Returns name -> full path of the file. Throws
// std::runtime_error, naming the file and line, for a line without exactly two fields or a
// map that cannot be read.
OST_API std::map<std::string, std::string> ReadResourceMap(const std::string& resourceFolder);

inline constexpr const char* kResourceFolderName = "Resources";
inline constexpr const char* kResourceMapFileName = "resources.map";

}  // namespace ostzm
