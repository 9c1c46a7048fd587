#pragma once

#include <zelmora/ZMTypes.h>

#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace zm::host {

struct MenuItem {
    ZMPluginRef plugin = nullptr;
    std::string group;
    std::string text;  // localized, with its "&" mnemonic marks
    int32_t options = 0;
    bool checked = false;
    bool enabled = true;
};

// The host's menus, as far as plug-ins add to them.
class MenuBar {
public:
    static bool IsKnownGroup(std::string_view group);

    // Throws HostError(ZM_ERR_NOT_FOUND) for a group the host does not have.
    MenuItem& Add(ZMPluginRef plugin, std::string group, std::string text, int32_t options);
    // Null for a handle this menu bar did not make.
    MenuItem* Find(ZMMenuItemHandle handle);
    ZMMenuItemHandle HandleOf(const MenuItem& item) const;
    const std::vector<std::unique_ptr<MenuItem>>& Items() const { return items_; }
    void RemovePlugin(ZMPluginRef plugin);

private:
    std::vector<std::unique_ptr<MenuItem>> items_;
};

}  // namespace zm::host
