#pragma once
/* Matching art: the art objects of a document that fit a description. */
#include "ZMTypes.h"

#ifdef __cplusplus
extern "C" {
#endif

#define ZM_MATCHING_ART_SUITE_NAME    "ZM Matching Art Suite"
#define ZM_MATCHING_ART_SUITE_VERSION 7

#ifdef __cplusplus
}
#endif
