#pragma once
/* Diagnostics the host offers plug-in developers. */
#include "ZMTypes.h"

#ifdef __cplusplus
extern "C" {
#endif

#define ZM_DEV_UTILS_SUITE_NAME    "ZM Dev Utils Suite"
#define ZM_DEV_UTILS_SUITE_VERSION 1

#ifdef __cplusplus
}
#endif
