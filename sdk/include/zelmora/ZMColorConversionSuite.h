#pragma once
/* Conversions of colours between colour models. */
#include "ZMTypes.h"

#ifdef __cplusplus
extern "C" {
#endif

#define ZM_OVERRIDE_COLOR_CONVERSION_SUITE_NAME    "Override ZM Color Conversion Suite"
#define ZM_OVERRIDE_COLOR_CONVERSION_SUITE_VERSION 7

#ifdef __cplusplus
}
#endif
