#pragma once

#include <filesystem>
#include <set>
#include <string>

namespace zm::test {

// What tests that write files look at: a file's bytes exactly as they are on disk, and the
// names a folder holds, where a temporary file left behind shows up.
std::string ReadFileBytes(const std::filesystem::path& file);
void WriteFileBytes(const std::filesystem::path& file, const std::string& bytes);
std::set<std::string> FolderEntryNames(const std::filesystem::path& folder);

}  // namespace zm::test
