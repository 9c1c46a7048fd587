#pragma once
/* Menu items that plug-ins add to the host's menus. */
#include "ZMTypes.h"

#ifdef __cplusplus
extern "C" {
#endif

#define ZM_MENU_SUITE_NAME    "ZM Menu Suite"
#define ZM_MENU_SUITE_VERSION 11

/* Menu groups a plug-in may add to. */
#define ZM_MENU_GROUP_TOOL_PALETTES "Tool Palettes"

typedef struct ZMMenuSuite {
    /* 0: adds an item with the (already localized, UTF-8) text to group. The handle lives
       until the plug-in is unloaded. ZM_ERR_NOT_FOUND for a group the host does not have. */
    ZMErr(ZM_API *AddMenuItem)(ZMPluginRef plugin, const char *group, const char *text,
                               int32_t options, ZMMenuItemHandle *item);
    /* 1 */ ZMErr(ZM_API *CheckItem)(ZMMenuItemHandle item, int32_t checked);
    /* 2 */ ZMErr(ZM_API *IsItemChecked)(ZMMenuItemHandle item, int32_t *checked);
    /* 3 */ ZMErr(ZM_API *EnableItem)(ZMMenuItemHandle item, int32_t enabled);
    /* 4 */ ZMErr(ZM_API *IsItemEnabled)(ZMMenuItemHandle item, int32_t *enabled);
    /* 5: the item's text; the pointer lives as long as the item. */
    ZMErr(ZM_API *GetItemText)(ZMMenuItemHandle item, const char **text);
} ZMMenuSuite;

#ifdef __cplusplus
}
#endif
