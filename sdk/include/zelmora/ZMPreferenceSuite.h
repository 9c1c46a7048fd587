#pragma once
/* Host preferences, read and written by key. */
#include "ZMTypes.h"

#ifdef __cplusplus
extern "C" {
#endif

#define ZM_PREFERENCE_SUITE_NAME    "ZM Preference Suite"
#define ZM_PREFERENCE_SUITE_VERSION 6

#ifdef __cplusplus
}
#endif
