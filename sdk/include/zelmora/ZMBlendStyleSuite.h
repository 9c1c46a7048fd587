#pragma once
/* Blend styles: the opacity and blending mode of art. */
#include "ZMArtTypes.h"

#ifdef __cplusplus
extern "C" {
#endif

#define ZM_BLEND_STYLE_SUITE_NAME    "ZM Blend Style Suite"
#define ZM_BLEND_STYLE_SUITE_VERSION 5

/* Blending modes. */
typedef int32_t ZMBlendingMode;
#define ZM_BLEND_NORMAL      0
#define ZM_BLEND_MULTIPLY    1
#define ZM_BLEND_SCREEN      2
#define ZM_BLEND_OVERLAY     3
#define ZM_BLEND_SOFT_LIGHT  4
#define ZM_BLEND_HARD_LIGHT  5
#define ZM_BLEND_COLOR_DODGE 6
#define ZM_BLEND_COLOR_BURN  7
#define ZM_BLEND_DARKEN      8
#define ZM_BLEND_LIGHTEN     9
#define ZM_BLEND_DIFFERENCE  10
#define ZM_BLEND_EXCLUSION   11
#define ZM_BLEND_HUE         12
#define ZM_BLEND_SATURATION  13
#define ZM_BLEND_COLOR       14
#define ZM_BLEND_LUMINOSITY  15

/* Opacity is what a user sees: the object's own opacity times the fainter of its fill and
   stroke opacities, 0..1. Every entry needs the current document (ZM_ERR_NO_DOCUMENT when
   none is open); a style of none of its art is ZM_ERR_BAD_ARGUMENT. */
typedef struct ZMBlendStyleSuite {
    /* 0 */ ZMErr(ZM_API *GetBlendingMode)(ZMArtHandle art, ZMBlendingMode *mode);
    /* 1 */ ZMErr(ZM_API *GetOpacity)(ZMArtHandle art, double *opacity);
    /* 2: normal blending at opacity 1. */
    ZMErr(ZM_API *IsNormalOpaque)(ZMArtHandle art, ZMBool *normalOpaque);
    /* 3 */ ZMErr(ZM_API *GetStyleBlendingMode)(ZMArtStyleHandle style, ZMBlendingMode *mode);
    /* 4 */ ZMErr(ZM_API *GetStyleOpacity)(ZMArtStyleHandle style, double *opacity);
    /* 5 */ ZMErr(ZM_API *IsStyleNormalOpaque)(ZMArtStyleHandle style, ZMBool *normalOpaque);
} ZMBlendStyleSuite;

#ifdef __cplusplus
}
#endif
