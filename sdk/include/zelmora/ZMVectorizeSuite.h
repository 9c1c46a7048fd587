#pragma once
/* Image tracing: objects that trace raster images into paths. */
#include "ZMTypes.h"

#ifdef __cplusplus
extern "C" {
#endif

#define ZM_VECTORIZE_SUITE_NAME    "ZM Vectorize Suite"
#define ZM_VECTORIZE_SUITE_VERSION 1

#ifdef __cplusplus
}
#endif
