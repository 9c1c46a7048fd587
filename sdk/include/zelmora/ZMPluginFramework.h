#pragma once
/* The plug-in framework: the description record a plug-in hands to every framework call,
   its declarations and handler tables, and the suites "LMB Basic Suite", "LMB Plugin Suite"
   and "LMB Utils Suite". */
#include "ZMPluginMain.h"

#ifdef __cplusplus
extern "C" {
#endif

/* Declarations are runs of pointer-sized words; the first word of each is its kind. */
typedef intptr_t ZMDeclarationWord;

#define ZM_DECL_END       0
/* {2, menu group name, (string list id << 16) | string index, 0, option word, command number,
   ZM_DECL_TERMINATOR}: one menu item, its text taken from the plug-in's string table. */
#define ZM_DECL_MENU_ITEM 2
/* {4, plug-in name, notifier type name, ZM_DECL_TERMINATOR}: one notifier subscription. */
#define ZM_DECL_NOTIFIER  4
/* {8, plug-in name, ZM_SUITE_LIST_FORMAT, ZM_SUITE_LIST_LEVEL, ZMSuiteDeclaration table}:
   suites the framework acquires before start-up and releases at shut-down. */
#define ZM_DECL_SUITES    8
#define ZM_DECL_TERMINATOR ((ZMDeclarationWord)-1)
#define ZM_SUITE_LIST_FORMAT 1
#define ZM_SUITE_LIST_LEVEL  10

/* One row of a suite table. Kind ZM_SUITE_KIND_FRAMEWORK rows are those the framework itself
   needs for the other declarations; a row of kind 0 ends the table. */
typedef struct ZMSuiteDeclaration {
    intptr_t kind;
    const char *name;
    intptr_t version;
    const void **target; /* module-wide pointer that receives the table */
} ZMSuiteDeclaration;

#define ZM_SUITE_KIND_END       0
#define ZM_SUITE_KIND_FRAMEWORK 12
#define ZM_SUITE_KIND_REQUIRED  13

/* Handlers take the message record the framework was given (or, for registration results,
   a ZMRegistrationMessage) and return a code. */
typedef ZMErr(ZM_API *ZMHandlerProc)(void *message);

/* Framework message codes, the keys of the message handler table. */
#define ZM_CODE_STARTUP  3
#define ZM_CODE_SHUTDOWN 4
#define ZM_CODE_UNLOAD   5
#define ZM_CODE_RELOAD   6
#define ZM_CODE_MENU     10
#define ZM_CODE_NOTIFY   11

typedef struct ZMMessageHandler {
    intptr_t code; /* 0 ends the table */
    ZMHandlerProc handler;
} ZMMessageHandler;

/* Registration-result kinds: the same numbers as the declarations they answer. */
#define ZM_RESULT_MENU_ITEM ZM_DECL_MENU_ITEM
#define ZM_RESULT_NOTIFIER  ZM_DECL_NOTIFIER

typedef struct ZMResultHandler {
    intptr_t kind; /* 0 ends the table */
    ZMHandlerProc handler;
    intptr_t reserved;
} ZMResultHandler;

/* What a registration-result handler receives. */
typedef struct ZMRegistrationMessage {
    ZMMessageRecord d;
    intptr_t kind;     /* ZM_RESULT_MENU_ITEM or ZM_RESULT_NOTIFIER */
    void *handle;      /* the ZMMenuItemHandle or ZMNotifierHandle created */
    const char *name;  /* the menu group, or the notifier's type name */
} ZMRegistrationMessage;

/* The static record a plug-in hands to every framework call. All words pointer-sized. */
typedef struct ZMPluginDescription {
    const char *name;
    intptr_t version;
    const ZMDeclarationWord *declarations;
    const ZMMessageHandler *handlers;
    const ZMResultHandler *results;
    intptr_t reserved[2];
} ZMPluginDescription;

#define ZM_DESCRIPTION_VERSION 1

#define ZM_LMB_BASIC_SUITE_NAME    "LMB Basic Suite"
#define ZM_LMB_BASIC_SUITE_VERSION 1

typedef struct ZMLMBBasicSuite {
    /* 0: decodes one message and calls the plug-in's handlers from inside this call.
       Returns the handler's code, ZM_ERR_BAD_MESSAGE for a record without the signature,
       ZM_ERR_BAD_SELECTOR for a caller/selector pair the framework does not know, or a
       failure of the framework's own work (suite acquisition, declarations). */
    ZMErr(ZM_API *Dispatch)(const ZMPluginDescription *plugin, const char *caller,
                            const char *selector, void *message);
} ZMLMBBasicSuite;

/* What the framework keeps for one plug-in; valid while the plug-in is loaded. */
typedef struct ZMFrameworkPluginData {
    ZMPluginRef plugin;
    ZMMenuItemHandle menuItem; /* the item made from the menu declaration, or null */
    int32_t started;           /* nonzero between StartPlugin and StopPlugin */
    int32_t notifierCount;     /* notifiers registered from the declarations */
} ZMFrameworkPluginData;

#define ZM_LMB_PLUGIN_SUITE_NAME    "LMB Plugin Suite"
#define ZM_LMB_PLUGIN_SUITE_VERSION 2

/* Every entry takes the description record first; ZM_ERR_NOT_FOUND when the framework has
   never seen that record in a Dispatch. Null entries are positions kept free. */
typedef struct ZMLMBPluginSuite {
    /* 0 */ ZMErr(ZM_API *GetFrameworkVersion)(const ZMPluginDescription *plugin, int32_t *version);
    /* 1 */ ZMErr(ZM_API *GetPluginData)(const ZMPluginDescription *plugin,
                                         const ZMFrameworkPluginData **data);
    /* 2 */ ZMErr(ZM_API *GetPluginName)(const ZMPluginDescription *plugin, const char **name);
    /* 3 */ ZMErr(ZM_API *IsStarted)(const ZMPluginDescription *plugin, int32_t *started);
    /* 4-7 */ void(ZM_API *reserved4[4])(void);
    /* 8: marks the plug-in started; starting twice is harmless. */
    ZMErr(ZM_API *StartPlugin)(const ZMPluginDescription *plugin);
    /* 9: marks it stopped; stopping a stopped plug-in is harmless. */
    ZMErr(ZM_API *StopPlugin)(const ZMPluginDescription *plugin);
    /* 10-11 */ void(ZM_API *reserved10[2])(void);
    /* 12 */ ZMErr(ZM_API *GetPluginRef)(const ZMPluginDescription *plugin, ZMPluginRef *ref);
    /* 13-14 */ void(ZM_API *reserved13[2])(void);
    /* 15: a zero-filled block owned by the plug-in until FreeBlock (ZM_ERR_NO_MEMORY). */
    ZMErr(ZM_API *AllocateBlock)(const ZMPluginDescription *plugin, size_t size, void **block);
    /* 16: null is ignored. */
    ZMErr(ZM_API *FreeBlock)(const ZMPluginDescription *plugin, void *block);
} ZMLMBPluginSuite;

#define ZM_LMB_UTILS_SUITE_NAME    "LMB Utils Suite"
#define ZM_LMB_UTILS_SUITE_VERSION 1

typedef struct ZMLMBUtilsSuite {
    /* 0: the four characters of code, most significant first, and a NUL into text[5]. */
    ZMErr(ZM_API *FourCharToText)(int32_t code, char *text);
    /* 1: the code of a four-character text; ZM_ERR_BAD_ARGUMENT unless exactly four. */
    ZMErr(ZM_API *TextToFourChar)(const char *text, int32_t *code);
} ZMLMBUtilsSuite;

#ifdef __cplusplus
}
#endif
