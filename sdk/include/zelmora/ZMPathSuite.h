#pragma once
/* Paths: the segments of path art. */
#include "ZMTypes.h"

#ifdef __cplusplus
extern "C" {
#endif

#define ZM_PATH_SUITE_NAME    "ZM Path Suite"
#define ZM_PATH_SUITE_VERSION 11

#ifdef __cplusplus
}
#endif
