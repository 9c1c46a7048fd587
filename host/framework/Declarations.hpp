#pragma once

#include <zelmora/ZMPluginFramework.h>

#include <cstdint>
#include <string>
#include <vector>

namespace zm::host {

// A plug-in's declaration list, read into plain values.
struct MenuDeclaration {
    std::string group;
    int32_t stringListId = 0;  // the item's text is string `stringIndex` of this list
    int32_t stringIndex = 0;
    int32_t options = 0;
    int32_t commandNumber = 0;
};

struct NotifierDeclaration {
    std::string owner;
    std::string type;
};

struct Declarations {
    const ZMSuiteDeclaration* suites = nullptr;  // null when the plug-in declares none
    std::vector<MenuDeclaration> menuItems;
    std::vector<NotifierDeclaration> notifiers;
};

// Throws HostError(ZM_ERR_BAD_DECLARATION) for an unknown kind, a missing terminator word,
// a null name or a second suite list.
Declarations ReadDeclarations(const ZMDeclarationWord* words);

}  // namespace zm::host
