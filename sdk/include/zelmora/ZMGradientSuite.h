#pragma once
/* Gradients: the document's gradient definitions and their stops. */
#include "ZMArtTypes.h"

#ifdef __cplusplus
extern "C" {
#endif

#define ZM_GRADIENT_SUITE_NAME    "ZM Gradient Suite"
#define ZM_GRADIENT_SUITE_VERSION 9

/* Gradient types. */
#define ZM_GRADIENT_LINEAR 0
#define ZM_GRADIENT_RADIAL 1

typedef struct ZMGradientStop {
    double offset;   /* 0..1 along the gradient */
    double midpoint; /* 0..1 between this stop and the next, where the colours mix evenly */
    double opacity;  /* 0..1 */
    ZMColor color;
} ZMGradientStop;

/* Every entry works on the current document (ZM_ERR_NO_DOCUMENT when none is open). A
   handle stays valid until its document closes; one of no gradient of the current document
   is ZM_ERR_BAD_ARGUMENT, and so is an index outside 0..count-1. */
typedef struct ZMGradientSuite {
    /* 0 */ ZMErr(ZM_API *CountGradients)(int32_t *count);
    /* 1 */ ZMErr(ZM_API *GetNthGradient)(int32_t index, ZMGradientHandle *gradient);
    /* 2: into a string the caller made. */
    ZMErr(ZM_API *GetGradientName)(ZMGradientHandle gradient, ZMUnicodeString name);
    /* 3: ZM_GRADIENT_... */
    ZMErr(ZM_API *GetGradientType)(ZMGradientHandle gradient, int16_t *type);
    /* 4 */ ZMErr(ZM_API *GetGradientStopCount)(ZMGradientHandle gradient, int16_t *count);
    /* 5: stops in order of their offsets. */
    ZMErr(ZM_API *GetNthGradientStop)(ZMGradientHandle gradient, int16_t index,
                                      ZMGradientStop *stop);
} ZMGradientSuite;

#ifdef __cplusplus
}
#endif
