#pragma once
/* Plug-in property lists: what the host read from each plug-in bundle. */
#include "ZMTypes.h"

#ifdef __cplusplus
extern "C" {
#endif

#define ZM_QUORVEL_PIP_SUITE_NAME    "ZM QuorvelPIP Suite"
#define ZM_QUORVEL_PIP_SUITE_VERSION 1

#ifdef __cplusplus
}
#endif
