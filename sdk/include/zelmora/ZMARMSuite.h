#pragma once
/* Asset references: the addresses of linked assets that the host manages. */
#include "ZMTypes.h"

#ifdef __cplusplus
extern "C" {
#endif

#define ZM_ARM_SUITE_NAME    "ZM ARM Suite"
#define ZM_ARM_SUITE_VERSION 3

#ifdef __cplusplus
}
#endif
