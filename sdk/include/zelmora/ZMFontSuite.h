#pragma once
/* The host's font catalogue, and the glue between its fonts and the text engine's. */
#include "ZMTypes.h"

#ifdef __cplusplus
extern "C" {
#endif

#define ZM_FONT_SUITE_NAME    "ZM Font Suite"
#define ZM_FONT_SUITE_VERSION 6

#define ZM_FONT_GLUE_SUITE_NAME    "ZM Font Glue Suite"
#define ZM_FONT_GLUE_SUITE_VERSION 8

#ifdef __cplusplus
}
#endif
