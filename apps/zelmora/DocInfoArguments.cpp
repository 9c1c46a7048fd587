#include "DocInfoArguments.hpp"

#include <array>

namespace zelmora {

namespace {

constexpr std::array<CategoryName, 11> kCategories = {{
    {"document", 2},
    {"objects", 3},
    {"graphic-styles", 4},
    {"brushes", 5},
    {"spot-colors", 6},
    {"patterns", 7},
    {"gradients", 8},
    {"fonts", 9},
    {"linked-images", 10},
    {"embedded-images", 11},
    {"font-details", 12},
}};

}  // namespace

std::span<const CategoryName> CategoryNames() { return kCategories; }

std::optional<int32_t> CategoryMode(std::string_view name) {
    for (const CategoryName& category : kCategories) {
        if (category.name == name) {
            return category.mode;
        }
    }
    return std::nullopt;
}

std::optional<std::pair<std::string, std::string>> ParsePreference(std::string_view text) {
    std::size_t equals = text.find('=');
    if (equals == std::string_view::npos || equals == 0) {
        return std::nullopt;
    }
    return std::pair<std::string, std::string>(text.substr(0, equals), text.substr(equals + 1));
}

}  // namespace zelmora
