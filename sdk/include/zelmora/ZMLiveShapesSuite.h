#pragma once
/* Live shapes: shapes that keep their parameters, and the corners of their paths. */
#include "ZMTypes.h"

#ifdef __cplusplus
extern "C" {
#endif

#define ZM_LIVE_SHAPES_SUITE_NAME    "ZM Live Shapes Suite"
#define ZM_LIVE_SHAPES_SUITE_VERSION 1

#define ZM_LIVE_CORNERS_SUITE_NAME    "ZM Live Corners Suite"
#define ZM_LIVE_CORNERS_SUITE_VERSION 1

#ifdef __cplusplus
}
#endif
