#pragma once
/* The art tree of a document: its art objects, their types, attributes and bounds. */
#include "ZMTypes.h"

#ifdef __cplusplus
extern "C" {
#endif

#define ZM_ART_SUITE_NAME    "ZM Art Suite"
#define ZM_ART_SUITE_VERSION 17

#ifdef __cplusplus
}
#endif
