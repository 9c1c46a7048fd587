#pragma once
/* Numbers and measurements formatted for display. */
#include "ZMTypes.h"

#ifdef __cplusplus
extern "C" {
#endif

#define ZM_STRING_FORMAT_UTILS_SUITE_NAME    "ZM String Format Utils Suite"
#define ZM_STRING_FORMAT_UTILS_SUITE_VERSION 3

#ifdef __cplusplus
}
#endif
