#pragma once
/* Data filters: byte streams read from and written to files. */
#include "ZMTypes.h"

#ifdef __cplusplus
extern "C" {
#endif

#define ZM_DATA_FILTER_SUITE_NAME    "ZM Data Filter Suite"
#define ZM_DATA_FILTER_SUITE_VERSION 8

#ifdef __cplusplus
}
#endif
