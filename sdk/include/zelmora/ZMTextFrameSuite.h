#pragma once
/* Text frames: point, area and on-path text art, and their text-engine objects. */
#include "ZMTypes.h"

#ifdef __cplusplus
extern "C" {
#endif

#define ZM_TEXT_FRAME_SUITE_NAME    "ZM Text Frame Suite"
#define ZM_TEXT_FRAME_SUITE_VERSION 4

#ifdef __cplusplus
}
#endif
