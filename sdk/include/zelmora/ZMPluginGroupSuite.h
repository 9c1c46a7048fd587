#pragma once
/* Plug-in groups: art that a plug-in makes and keeps up to date. */
#include "ZMArtTypes.h"
#include "ZMTypes.h"

#ifdef __cplusplus
extern "C" {
#endif

#define ZM_PLUGIN_GROUP_SUITE_NAME    "ZM Plugin Group Suite"
#define ZM_PLUGIN_GROUP_SUITE_VERSION 6

/* The kind of plug-in group one plug-in makes. The host keeps one for every plug-in named by
   a document, loaded or not, for as long as it runs. */
typedef struct ZMPluginGroupClassOpaque *ZMPluginGroupClass;

/* Entries taking art need a plug-in group (ZM_ART_PLUGIN_GROUP): other art is
   ZM_ERR_WRONG_ART_TYPE. ZM_ERR_BAD_ARGUMENT for a null pointer or a handle the host did not
   make; ZM_ERR_NO_DOCUMENT when no document is open (entries taking art). */
typedef struct ZMPluginGroupSuite {
    /* 0: the kind of the plug-in group, which names the plug-in that made it. */
    ZMErr(ZM_API *GetPluginArtClass)(ZMArtHandle art, ZMPluginGroupClass *groupClass);
    /* 1: the plug-in behind the kind: the loaded plug-in of that name when there is one,
       else a reference of the host's own that the plug-ins suite can name. */
    ZMErr(ZM_API *GetPluginClassPluginRef)(ZMPluginGroupClass groupClass, ZMPluginRef *plugin);
    /* 2: the plug-in's name, zero-terminated UTF-8 that lives as long as the host. */
    ZMErr(ZM_API *GetPluginClassName)(ZMPluginGroupClass groupClass, const char **name);
    /* 3: the group holding what the plug-in made (the plug-in group's one member). */
    ZMErr(ZM_API *GetPluginArtResultGroup)(ZMArtHandle art, ZMArtHandle *result);
} ZMPluginGroupSuite;

#ifdef __cplusplus
}
#endif
