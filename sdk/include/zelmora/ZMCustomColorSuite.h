#pragma once
/* Custom colours: the document's named swatches, process or spot. */
#include "ZMTypes.h"

#ifdef __cplusplus
extern "C" {
#endif

#define ZM_CUSTOM_COLOR_SUITE_NAME    "ZM Custom Color Suite"
#define ZM_CUSTOM_COLOR_SUITE_VERSION 8

#ifdef __cplusplus
}
#endif
