#pragma once

#include <string>

namespace ostui {

// One line of a menu resource: an item (its id and its localizable text key) or a separator.
struct MenuEntry {
    bool separator = false;
    int id = 0;
    std::string key;
    bool enabled = true;
    bool checked = false;
};

}  // namespace ostui
