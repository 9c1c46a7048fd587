#pragma once
/* The brushes a document holds. */
#include "ZMTypes.h"

#ifdef __cplusplus
extern "C" {
#endif

#define ZM_BRUSH_MGR_SUITE_NAME    "ZM Brush Mgr Suite"
#define ZM_BRUSH_MGR_SUITE_VERSION 4

#ifdef __cplusplus
}
#endif
