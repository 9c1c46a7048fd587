#pragma once

#include <filesystem>
#include <iosfwd>
#include <vector>

namespace zelmora {

// `zelmora plugins`: loads every plug-in it finds and lists the ones that started.
int RunPluginsCommand(const std::vector<std::filesystem::path>& extraFolders, std::ostream& out,
                      std::ostream& errors);

}  // namespace zelmora
