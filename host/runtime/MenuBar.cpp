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
    items_.push_back(std::make_unique<MenuItem>(
        MenuItem{plugin, std::move(group), std::move(text), options, false, true}));
    return *items_.back();
}

MenuItem* MenuBar::Find(ZMMenuItemHandle handle) {
    for (auto& item : items_) {
        if (reinterpret_cast<ZMMenuItemHandle>(item.get()) == handle) {
            return item.get();
        }
    }
    return nullptr;
}

ZMMenuItemHandle MenuBar::HandleOf(const MenuItem& item) const {
    return reinterpret_cast<ZMMenuItemHandle>(const_cast<MenuItem*>(&item));
}

void MenuBar::RemovePlugin(ZMPluginRef plugin) {
    std::erase_if(items_, [plugin](const auto& item) { return item->plugin == plugin; });
}

}  // namespace zm::host
