#include "support/FileBytes.hpp"

#include <fstream>
#include <iterator>
#include <stdexcept>

namespace zm::test {

std::string ReadFileBytes(const std::filesystem::path& file) {
    std::ifstream in(file, std::ios::binary);
    if (!in) {
        throw std::runtime_error("cannot read " + file.string());
    }
    return std::string(std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>());
}

void WriteFileBytes(const std::filesystem::path& file, const std::string& bytes) {
    std::ofstream out(file, std::ios::binary);
    out << bytes;
    if (!out) {
        throw std::runtime_error("cannot write " + file.string());
    }
}

std::set<std::string> FolderEntryNames(const std::filesystem::path& folder) {
    std::set<std::string> names;
    for (const auto& entry : std::filesystem::directory_iterator(folder)) {
        names.insert(entry.path().filename().string());
    }
    return names;
}

}  // namespace zm::test
