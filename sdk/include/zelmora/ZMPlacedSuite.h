#pragma once
/* Placed art: linked files and how they are placed. */
#include "ZMTypes.h"

#ifdef __cplusplus
extern "C" {
#endif

#define ZM_PLACED_SUITE_NAME    "ZM Placed Suite"
#define ZM_PLACED_SUITE_VERSION 8

#ifdef __cplusplus
}
#endif
