#pragma once

#include "runtime/HandleList.hpp"

#include <zelmora/ZMTypes.h>

#include <string>
#include <string_view>

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
class MenuBar : public HandleList<MenuItem, ZMMenuItemHandle> {
public:
    static bool IsKnownGroup(std::string_view group);

    // Throws HostError(ZM_ERR_NOT_FOUND) for a group the host does not have.
    MenuItem& Add(ZMPluginRef plugin, std::string group, std::string text, int32_t options);
    const std::vector<std::unique_ptr<MenuItem>>& Items() const { return All(); }
};

}  // namespace zm::host
