#include "runtime/MenuBar.hpp"

#include "runtime/HostError.hpp"

#include <algorithm>
#include <array>

namespace zm::host {

namespace {
constexpr std::array<std::string_view, 6> kGroups = {
    "Tool Palettes", "Window Utilities", "Document Utilities", "Help", "About", "Preferences"};
}

bool MenuBar::IsKnownGroup(std::string_view group) {
    return std::find(kGroups.begin(), kGroups.end(), group) != kGroups.end();
}

MenuItem& MenuBar::Add(ZMPluginRef plugin, std::string group, std::string text,
                       int32_t options) {
    if (!IsKnownGroup(group)) {
        throw HostError(ZM_ERR_NOT_FOUND, "unknown menu group: " + group);
    }
    return HandleList::Add(MenuItem{plugin, std::move(group), std::move(text), options, false, true});
}

}  // namespace zm::host
