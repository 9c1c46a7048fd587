#include "loader/TextFile.hpp"

#include <cerrno>
#include <cstring>
#include <fstream>
#include <sstream>
#include <stdexcept>

namespace zm::host {

std::string ReadTextFile(const std::filesystem::path& file) {
    std::ifstream stream(file, std::ios::binary);
    if (!stream) {
        throw std::runtime_error(file.string() + ": cannot be read: " + std::strerror(errno));
    }
    std::ostringstream contents;
    contents << stream.rdbuf();
    if (stream.bad()) {
        throw std::runtime_error(file.string() + ": read error");
    }
    return contents.str();
}

}  // namespace zm::host
