#pragma once
/* Colour spaces: the colour space and colorants of images. */
#include "ZMTypes.h"

#ifdef __cplusplus
extern "C" {
#endif

#define ZM_COLOR_SPACE_SUITE_NAME    "ZM Color Space Suite"
#define ZM_COLOR_SPACE_SUITE_VERSION 7

#ifdef __cplusplus
}
#endif
