#pragma once

#include <filesystem>
#include <string>
#include <string_view>

namespace zm::host {

// The whole file; throws std::runtime_error naming the file when it cannot be read.
std::string ReadTextFile(const std::filesystem::path& file);

// Calls visit(line, lineNumber) for each line, 1-based, without its "\n" or "\r\n".
template <typename Visit>
void ForEachLine(std::string_view text, Visit&& visit) {
    int lineNumber = 0;
    while (!text.empty()) {
        std::size_t end = text.find('\n');
        std::string_view line = text.substr(0, end);
        text = end == std::string_view::npos ? std::string_view() : text.substr(end + 1);
        if (!line.empty() && line.back() == '\r') {
            line.remove_suffix(1);
        }
        visit(line, ++lineNumber);
    }
}

}  // namespace zm::host
