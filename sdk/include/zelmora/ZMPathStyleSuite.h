#pragma once
/* Path styles: the fill and stroke paint of art. */
#include "ZMTypes.h"

#ifdef __cplusplus
extern "C" {
#endif

#define ZM_PATH_STYLE_SUITE_NAME    "ZM Path Style Suite"
#define ZM_PATH_STYLE_SUITE_VERSION 13

#ifdef __cplusplus
}
#endif
