#pragma once

#include <cstdint>
#include <filesystem>
#include <map>
#include <optional>
#include <string>
#include <string_view>

namespace zm::host {

// A plug-in's string table: numbered localizable keys. In the file, each line is an id, one
// blank and the key to the end of the line (UTF-8); blank lines and lines starting with "#"
// are skipped. A string list is addressed as list id + 1-based index (list 19200, index 3
// is id 19203).
class StringTable {
public:
    // Throws std::runtime_error naming the file and line for a malformed or duplicate line.
    static StringTable Parse(std::string_view text, const std::string& origin);
    static StringTable Read(const std::filesystem::path& file);

    void Add(int32_t id, std::string key);
    std::optional<std::string_view> Find(int32_t id) const;
    std::size_t Size() const { return keys_.size(); }

private:
    std::map<int32_t, std::string> keys_;
};

}  // namespace zm::host
