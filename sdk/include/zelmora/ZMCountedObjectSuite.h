#pragma once
/* Reference counts of host objects shared with plug-ins. */
#include "ZMTypes.h"

#ifdef __cplusplus
extern "C" {
#endif

#define ZM_COUNTED_OBJECT_SUITE_NAME    "ZM Counted Object Suite"
#define ZM_COUNTED_OBJECT_SUITE_VERSION 3

#ifdef __cplusplus
}
#endif
