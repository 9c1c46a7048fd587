#pragma once
/* The plug-ins the host has loaded: their names, references and options. */
#include "ZMTypes.h"

#ifdef __cplusplus
extern "C" {
#endif

#define ZM_HV_PLUGINS_SUITE_NAME    "HV Plug-ins Suite"
#define ZM_HV_PLUGINS_SUITE_VERSION 6

/* The plug-ins the host knows: the loaded ones in load order, then those that only documents
   name (as the makers of plug-in groups). ZM_ERR_BAD_ARGUMENT for a null pointer or a
   reference naming none of them. */
typedef struct HVPluginsSuite {
    /* 0 */
    ZMErr(ZM_API *CountPlugins)(int32_t *count);
    /* 1: ZM_ERR_BAD_ARGUMENT for an index outside 0..count-1. */
    ZMErr(ZM_API *GetNthPlugin)(int32_t index, ZMPluginRef *plugin);
    /* 2: the plug-in's name, zero-terminated UTF-8, valid while the plug-in stays known. */
    ZMErr(ZM_API *GetPluginName)(ZMPluginRef plugin, const char **name);
} HVPluginsSuite;

#ifdef __cplusplus
}
#endif
