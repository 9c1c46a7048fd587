#pragma once

#include <pugixml.hpp>

#include <string_view>
#include <vector>

namespace zm::host::svg {

// A length attribute in user units; `fallback` when absent or unreadable. Percentages are of
// percentBase, em and ex of fontSize (both user units).
double LengthAttribute(pugi::xml_node element, const char* name, double fallback,
                       double percentBase = 0, double fontSize = 16);

// "true" or "false"; `fallback` for anything else or when absent.
bool BooleanValue(std::string_view text, bool fallback);

// Words of an attribute separated by blanks or commas.
std::vector<std::string_view> SplitWords(std::string_view text);

}  // namespace zm::host::svg
