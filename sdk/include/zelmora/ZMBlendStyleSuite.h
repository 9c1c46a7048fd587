#pragma once
/* Blend styles: the opacity and blending mode of art. */
#include "ZMTypes.h"

#ifdef __cplusplus
extern "C" {
#endif

#define ZM_BLEND_STYLE_SUITE_NAME    "ZM Blend Style Suite"
#define ZM_BLEND_STYLE_SUITE_VERSION 5

#ifdef __cplusplus
}
#endif
