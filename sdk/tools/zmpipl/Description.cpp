#include "Description.hpp"

#include <charconv>
#include <map>
#include <optional>
#include <utility>

namespace zm::pipl {

namespace {

constexpr std::string_view kBlanks = " \t\r";

std::string_view Trim(std::string_view text) {
    std::size_t first = text.find_first_not_of(kBlanks);
    if (first == std::string_view::npos) {
        return {};
    }
    return text.substr(first, text.find_last_not_of(kBlanks) - first + 1);
}

std::string Quoted(std::string_view text) { return "'" + std::string(text) + "'"; }

void RequireOneWord(std::string_view value, std::string_view what, int line) {
    if (value.find_first_of(kBlanks) != std::string_view::npos) {
        throw DescriptionError(line, Quoted(value) + " is not " + std::string(what));
    }
}

FourCharCode ParseCode(std::string_view value, int line) {
    RequireOneWord(value, "a four-character code", line);
    if (value.size() != 4) {
        throw DescriptionError(line, Quoted(value) + " has " + std::to_string(value.size()) +
                                         " characters, a four-character code has 4");
    }
    FourCharCode code;
    for (char c : value) {
        if (c < 0x21 || c > 0x7E) {
            throw DescriptionError(line,
                                   Quoted(value) + " has a character outside printable ASCII");
        }
        code.value = code.value << 8 | static_cast<std::uint8_t>(c);
    }
    return code;
}

PropertyValue ParseCodeValue(std::string_view value, int line) { return ParseCode(value, line); }

PropertyValue ParseIntegerValue(std::string_view value, int line) {
    RequireOneWord(value, "an integer", line);
    std::int32_t number = 0;
    auto [end, error] = std::from_chars(value.data(), value.data() + value.size(), number);
    if (error == std::errc::result_out_of_range) {
        throw DescriptionError(line, Quoted(value) + " does not fit in 32 bits");
    }
    if (error != std::errc() || end != value.data() + value.size()) {
        throw DescriptionError(line, Quoted(value) + " is not an integer");
    }
    return number;
}

// The rest of the line, inner spaces included; the writer adds the terminator.
PropertyValue ParseStringValue(std::string_view value, int) { return std::string(value); }

struct KeyRule {
    std::string_view key;
    PropertyValue (*parse)(std::string_view value, int line);
};

constexpr std::string_view kVendorDirective = "vendor";

constexpr KeyRule kKeyRules[] = {
    {"kind", ParseCodeValue},     // the plug-in kind
    {"ivrs", ParseIntegerValue},  // the interface version
    {"wx86", ParseStringValue},   // the entry point's name
    {"pinm", ParseStringValue},   // the plug-in's name
};

const KeyRule* FindRule(std::string_view key) {
    for (const KeyRule& rule : kKeyRules) {
        if (rule.key == key) {
            return &rule;
        }
    }
    return nullptr;
}

}  // namespace

std::vector<Property> ParseDescription(std::string_view text) {
    std::vector<Property> properties;
    std::optional<FourCharCode> vendor;
    std::map<std::pair<std::uint32_t, std::uint32_t>, int> firstLines;  // (vendor, key) -> line
    int lineNumber = 0;
    while (!text.empty()) {
        std::size_t end = text.find('\n');
        std::string_view line = text.substr(0, end);
        text = end == std::string_view::npos ? std::string_view() : text.substr(end + 1);
        ++lineNumber;

        line = Trim(line.substr(0, line.find('#')));
        if (line.empty()) {
            continue;
        }
        std::size_t keyEnd = line.find_first_of(kBlanks);
        std::string_view key = line.substr(0, keyEnd);
        std::string_view value =
            keyEnd == std::string_view::npos ? std::string_view() : Trim(line.substr(keyEnd));
        if (key != kVendorDirective && FindRule(key) == nullptr) {
            throw DescriptionError(lineNumber, "unknown key " + Quoted(key));
        }
        if (value.empty()) {
            throw DescriptionError(lineNumber, Quoted(key) + " needs a value");
        }
        if (key == kVendorDirective) {
            vendor = ParseCode(value, lineNumber);
            continue;
        }
        if (!vendor) {
            throw DescriptionError(lineNumber, Quoted(key) + " comes before any vendor line");
        }
        FourCharCode keyCode = ParseCode(key, lineNumber);
        auto [first, inserted] =
            firstLines.emplace(std::pair(vendor->value, keyCode.value), lineNumber);
        if (!inserted) {
            throw DescriptionError(lineNumber, "duplicate key " + Quoted(key) + ", first on line " +
                                                   std::to_string(first->second));
        }
        properties.push_back({*vendor, keyCode, FindRule(key)->parse(value, lineNumber)});
    }
    if (properties.empty()) {
        throw DescriptionError(0, "no properties");
    }
    return properties;
}

}  // namespace zm::pipl
