#pragma once

#include <cstdint>
#include <stdexcept>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

namespace zm::pipl {

// A four-character code as the number its characters spell, first character most significant.
struct FourCharCode {
    std::uint32_t value = 0;
};

using PropertyValue = std::variant<FourCharCode, std::int32_t, std::string>;

struct Property {
    FourCharCode vendor;
    FourCharCode key;
    PropertyValue value;
};

// A mistake in the description. The line is 1-based, or 0 when the mistake is the whole text's.
class DescriptionError : public std::runtime_error {
public:
    DescriptionError(int line, const std::string& reason)
        : std::runtime_error(reason), line_(line) {}
    int Line() const noexcept { return line_; }

private:
    int line_;
};

// Reads a text description: one "key value" per line, in the order the properties are to be
// written. "vendor CODE" sets the vendor of the lines after it; "#" starts a comment that runs
// to the end of the line; blank lines are skipped. Throws DescriptionError.
std::vector<Property> ParseDescription(std::string_view text);

}  // namespace zm::pipl
