// zmpipl INPUT.txt OUTPUT.pipl: compiles a plug-in's text description into its binary
// property list. On any mistake it prints "zmpipl: INPUT:LINE: reason", exits with 1 and
// leaves OUTPUT as it was.

#include "Description.hpp"
#include "PropertyListWriter.hpp"

#include <cerrno>
#include <cstdio>
#include <cstring>
#include <exception>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <string>
#include <system_error>

namespace {

bool ReadWholeFile(const std::filesystem::path& file, std::string& contents) {
    std::ifstream stream(file, std::ios::binary);
    if (!stream) {
        return false;
    }
    std::ostringstream buffer;
    buffer << stream.rdbuf();
    contents = buffer.str();
    return !stream.bad();
}

// Writes beside the output and renames, so a failed run never leaves half a file behind and a
// build never picks up a stale one. Returns an empty string or the reason it failed.
std::string WriteWholeFile(const std::filesystem::path& file,
                           const std::vector<std::uint8_t>& bytes) {
    std::filesystem::path temporary = file;
    temporary += ".tmp";
    {
        std::ofstream stream(temporary, std::ios::binary | std::ios::trunc);
        if (!stream) {
            return std::string("cannot be created: ") + std::strerror(errno);
        }
        stream.write(reinterpret_cast<const char*>(bytes.data()),
                     static_cast<std::streamsize>(bytes.size()));
        stream.close();
        if (!stream) {
            std::error_code ignored;
            std::filesystem::remove(temporary, ignored);
            return "write error";
        }
    }
    std::error_code error;
    std::filesystem::rename(temporary, file, error);
    if (error) {
        std::error_code ignored;
        std::filesystem::remove(temporary, ignored);
        return "cannot be renamed into place: " + error.message();
    }
    return {};
}

int Fail(const std::string& where, const std::string& reason) {
    std::fprintf(stderr, "zmpipl: %s: %s\n", where.c_str(), reason.c_str());
    return 1;
}

}  // namespace

int main(int argc, char** argv) {
    if (argc != 3) {
        std::fprintf(stderr, "usage: zmpipl INPUT.txt OUTPUT.pipl\n");
        return 2;
    }
    const std::string input = argv[1];
    const std::string output = argv[2];
    try {
        std::string text;
        if (!ReadWholeFile(input, text)) {
            return Fail(input, std::string("cannot be read: ") + std::strerror(errno));
        }
        std::vector<zm::pipl::Property> properties;
        try {
            properties = zm::pipl::ParseDescription(text);
        } catch (const zm::pipl::DescriptionError& error) {
            std::string where = input;
            if (error.Line() > 0) {
                where += ":" + std::to_string(error.Line());
            }
            return Fail(where, error.what());
        }
        std::string failure = WriteWholeFile(output, zm::pipl::WritePropertyList(properties));
        if (!failure.empty()) {
            return Fail(output, failure);
        }
        return 0;
    } catch (const std::exception& error) {
        return Fail(input, error.what());
    }
}
