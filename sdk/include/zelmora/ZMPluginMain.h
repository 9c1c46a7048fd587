#pragma once
/* The message records the host hands to PluginMain, and the entry point itself. */
#include "ZMTypes.h"

#ifdef __cplusplus
extern "C" {
#endif

struct ZMBasicSuite;

/* Every message starts with this signature; a record without it is not the host's. */
#define ZM_MESSAGE_SIGNATURE ZM_FOUR_CHAR('H', 'V', 'C', 'k')

/* Callers and selectors: the pair names the message. */
#define ZM_CALLER_ACCESS      "HV Access"
#define ZM_SELECTOR_RELOAD    "Reload" /* sent first whenever the module is loaded */
#define ZM_SELECTOR_UNLOAD    "Unload" /* sent last before the module is unloaded */
#define ZM_CALLER_PLUGIN      "HV Plugin"
#define ZM_SELECTOR_STARTUP   "Startup"
#define ZM_SELECTOR_SHUTDOWN  "Shutdown"
#define ZM_CALLER_MENU        "ZM Menu"
#define ZM_SELECTOR_GO_MENU   "Go Menu Item"
#define ZM_CALLER_NOTIFIER    "ZM Notifier"
#define ZM_SELECTOR_NOTIFY    "Notify"

/* The header of every message (64-bit layout, pinned by the ABI tests). */
typedef struct ZMMessageRecord {
    uint32_t signature;              /* ZM_MESSAGE_SIGNATURE */
    uint32_t reserved;
    ZMPluginRef self;                /* the plug-in's own reference in the host */
    void *globals;                   /* the plug-in's globals block; the host keeps it between calls */
    struct ZMBasicSuite *basicSuite; /* the host's basic suite */
} ZMMessageRecord;

/* "ZM Menu" / "Go Menu Item". */
typedef struct ZMMenuMessage {
    ZMMessageRecord d;
    ZMMenuItemHandle menuItem; /* the item the user chose */
} ZMMenuMessage;

/* "ZM Notifier" / "Notify". */
typedef struct ZMNotifierMessage {
    ZMMessageRecord d;
    ZMNotifierHandle notifier;
    const char *type;  /* the notifier's type name, such as "ZM Document Changed Notifier" */
    void *notifyData;  /* opaque; equal pointers mean the same event */
} ZMNotifierMessage;

/* The entry point every plug-in exports. caller and selector are zero-terminated ASCII;
   message points at a record that starts with ZMMessageRecord. */
typedef ZMErr(ZM_API *ZMPluginMainProc)(const char *caller, const char *selector, void *message);

#define ZM_PLUGIN_MAIN_NAME "PluginMain"

#ifdef __cplusplus
}
#endif
