#pragma once
/* Opacity masks on art. */
#include "ZMTypes.h"

#ifdef __cplusplus
extern "C" {
#endif

#define ZM_MASK_SUITE_NAME    "ZM Mask Suite"
#define ZM_MASK_SUITE_VERSION 5

#ifdef __cplusplus
}
#endif
