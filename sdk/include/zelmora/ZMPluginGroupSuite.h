#pragma once
/* Plug-in groups: art that a plug-in makes and keeps up to date. */
#include "ZMTypes.h"

#ifdef __cplusplus
extern "C" {
#endif

#define ZM_PLUGIN_GROUP_SUITE_NAME    "ZM Plugin Group Suite"
#define ZM_PLUGIN_GROUP_SUITE_VERSION 6

#ifdef __cplusplus
}
#endif
