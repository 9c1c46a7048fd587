#pragma once
/* Workspaces: saved arrangements of the host's panels. */
#include "ZMTypes.h"

#ifdef __cplusplus
extern "C" {
#endif

#define ZM_WORKSPACE_SUITE_NAME    "ZM Workspace Suite"
#define ZM_WORKSPACE_SUITE_VERSION 3

#ifdef __cplusplus
}
#endif
