#pragma once
/* Gradient meshes. */
#include "ZMTypes.h"

#ifdef __cplusplus
extern "C" {
#endif

#define ZM_MESH_SUITE_NAME    "ZM Mesh Suite"
#define ZM_MESH_SUITE_VERSION 6

#ifdef __cplusplus
}
#endif
