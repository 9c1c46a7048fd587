#pragma once
/* Patterns: the document's pattern definitions. */
#include "ZMTypes.h"

#ifdef __cplusplus
extern "C" {
#endif

#define ZM_PATTERN_SUITE_NAME    "ZM Pattern Suite"
#define ZM_PATTERN_SUITE_VERSION 10

#ifdef __cplusplus
}
#endif
