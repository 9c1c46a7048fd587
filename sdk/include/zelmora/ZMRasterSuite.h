#pragma once
/* Raster art: embedded images, their pixels and colour spaces. */
#include "ZMTypes.h"

#ifdef __cplusplus
extern "C" {
#endif

#define ZM_RASTER_SUITE_NAME    "ZM Raster Suite"
#define ZM_RASTER_SUITE_VERSION 10

#ifdef __cplusplus
}
#endif
