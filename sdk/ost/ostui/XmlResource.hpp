#pragma once

#include <pugixml.hpp>

#include <string>
#include <string_view>

namespace ostui {

// What the layout and menu readers share. Every failure throws ResourceError naming `source`.

// The whole file.
std::string ReadResourceFile(const std::string& file);
// Parses `xml` into `document` and returns its root element, which must be named `rootName`.
pugi::xml_node LoadXmlRoot(pugi::xml_document& document, std::string_view xml,
                           const std::string& source, const char* rootName);
int ParsePositiveInteger(const char* text, const std::string& source, const char* what);
float ParseNonNegativeNumber(const char* text, const std::string& source, const char* what);
// "true" or "false".
bool ParseBoolean(const char* text, const std::string& source, const char* what);

}  // namespace ostui
