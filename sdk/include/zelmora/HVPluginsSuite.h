#pragma once
/* The plug-ins the host has loaded: their names, references and options. */
#include "ZMTypes.h"

#ifdef __cplusplus
extern "C" {
#endif

#define ZM_HV_PLUGINS_SUITE_NAME    "HV Plug-ins Suite"
#define ZM_HV_PLUGINS_SUITE_VERSION 6

#ifdef __cplusplus
}
#endif
