#include "ostui/XmlResource.hpp"

#include "ostui/ResourceError.hpp"

#include <charconv>
#include <cstring>
#include <fstream>
#include <sstream>

namespace ostui {

namespace {

[[noreturn]] void FailValue(const std::string& source, const char* what, const char* text) {
    throw ResourceError(source + ": bad " + what + " \"" + text + "\"");
}

}  // namespace

std::string ReadResourceFile(const std::string& file) {
    std::ifstream stream(file, std::ios::binary);
    if (!stream) {
        throw ResourceError(file + ": cannot be read");
    }
    std::ostringstream contents;
    contents << stream.rdbuf();
    return contents.str();
}

pugi::xml_node LoadXmlRoot(pugi::xml_document& document, std::string_view xml,
                           const std::string& source, const char* rootName) {
    pugi::xml_parse_result parsed = document.load_buffer(xml.data(), xml.size());
    if (!parsed) {
        std::size_t offset = static_cast<std::size_t>(parsed.offset);
        std::size_t line = 1;
        for (std::size_t i = 0; i < offset && i < xml.size(); ++i) {
            line += xml[i] == '\n' ? 1 : 0;
        }
        throw ResourceError(source + ":" + std::to_string(line) + ": " + parsed.description());
    }
    pugi::xml_node root = document.document_element();
    if (std::strcmp(root.name(), rootName) != 0) {
        throw ResourceError(source + ": the root element is <" + root.name() + ">, not <" +
                            rootName + ">");
    }
    return root;
}

int ParsePositiveInteger(const char* text, const std::string& source, const char* what) {
    int value = 0;
    const char* end = text + std::strlen(text);
    auto [stop, error] = std::from_chars(text, end, value);
    if (error != std::errc() || stop != end || value <= 0) {
        FailValue(source, what, text);
    }
    return value;
}

float ParseNonNegativeNumber(const char* text, const std::string& source, const char* what) {
    float value = 0.0f;
    const char* end = text + std::strlen(text);
    auto [stop, error] = std::from_chars(text, end, value);
    if (error != std::errc() || stop != end || !(value >= 0.0f)) {
        FailValue(source, what, text);
    }
    return value;
}

bool ParseBoolean(const char* text, const std::string& source, const char* what) {
    if (std::strcmp(text, "true") == 0) {
        return true;
    }
    if (std::strcmp(text, "false") == 0) {
        return false;
    }
    FailValue(source, what, text);
}

}  // namespace ostui
