#pragma once
/* Layers of a document, and the layer lists that order them. */
#include "ZMTypes.h"

#ifdef __cplusplus
extern "C" {
#endif

#define ZM_LAYER_SUITE_NAME    "ZM Layer Suite"
#define ZM_LAYER_SUITE_VERSION 13

#define ZM_LAYER_LIST_SUITE_NAME    "ZM Layer List"
#define ZM_LAYER_LIST_SUITE_VERSION 4

#ifdef __cplusplus
}
#endif
