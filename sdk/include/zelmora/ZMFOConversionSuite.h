#pragma once
/* Foreign objects: art kept in a foreign format, and what can be read from it. */
#include "ZMTypes.h"

#ifdef __cplusplus
extern "C" {
#endif

#define ZM_FO_CONVERSION_SUITE_NAME    "ZM FO Conversion Suite"
#define ZM_FO_CONVERSION_SUITE_VERSION 3

#ifdef __cplusplus
}
#endif
