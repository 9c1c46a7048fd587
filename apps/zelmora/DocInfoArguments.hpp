#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <utility>

namespace zelmora {

// A panel category as --category names it, and the panel's mode number for it.
struct CategoryName {
    std::string_view name;
    int32_t mode;
};

// The eleven categories in the panel's menu order, modes 2 to 12.
std::span<const CategoryName> CategoryNames();

// The mode of a category name; nothing for a name that is not one.
std::optional<int32_t> CategoryMode(std::string_view name);

// "KEY=VALUE" split at the first "=": the key must not be empty, the value may be (and may
// hold "=" itself). Nothing for text without "=" or with an empty key.
std::optional<std::pair<std::string, std::string>> ParsePreference(std::string_view text);

}  // namespace zelmora
