#pragma once
/* Resizable memory blocks the host allocates for plug-ins. */
#include "ZMTypes.h"

#ifdef __cplusplus
extern "C" {
#endif

#define ZM_HV_BLOCKS_SUITE_NAME    "HV Blocks Suite"
#define ZM_HV_BLOCKS_SUITE_VERSION 2

#ifdef __cplusplus
}
#endif
