#pragma once
/* Artboards: the pages of a document. */
#include "ZMTypes.h"

#ifdef __cplusplus
extern "C" {
#endif

#define ZM_ARTBOARD_SUITE_NAME    "ZM Artboard Suite"
#define ZM_ARTBOARD_SUITE_VERSION 3

#ifdef __cplusplus
}
#endif
