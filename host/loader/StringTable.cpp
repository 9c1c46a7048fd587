#include "loader/StringTable.hpp"

#include "loader/TextFile.hpp"

#include <charconv>
#include <stdexcept>

namespace zm::host {

StringTable StringTable::Parse(std::string_view text, const std::string& origin) {
    StringTable table;
    ForEachLine(text, [&](std::string_view line, int lineNumber) {
        if (line.empty() || line.front() == '#') {
            return;
        }
        auto fail = [&](const std::string& reason) {
            throw std::runtime_error(origin + ":" + std::to_string(lineNumber) + ": " + reason);
        };
        std::size_t blank = line.find(' ');
        if (blank == std::string_view::npos || blank + 1 >= line.size()) {
            fail("expected an id, a blank and a key");
        }
        int32_t id = 0;
        auto [end, error] = std::from_chars(line.data(), line.data() + blank, id);
        if (error != std::errc() || end != line.data() + blank) {
            fail("the id is not a number");
        }
        if (table.Find(id)) {
            fail("id " + std::to_string(id) + " appears twice");
        }
        table.Add(id, std::string(line.substr(blank + 1)));
    });
    return table;
}

StringTable StringTable::Read(const std::filesystem::path& file) {
    return Parse(ReadTextFile(file), file.string());
}

void StringTable::Add(int32_t id, std::string key) { keys_[id] = std::move(key); }

std::optional<std::string_view> StringTable::Find(int32_t id) const {
    auto it = keys_.find(id);
    if (it == keys_.end()) {
        return std::nullopt;
    }
    return std::string_view(it->second);
}

}  // namespace zm::host
