#pragma once
/* Image tracing: objects that trace raster images into paths. */
#include "ZMArtTypes.h"
#include "ZMTypes.h"

#ifdef __cplusplus
extern "C" {
#endif

#define ZM_VECTORIZE_SUITE_NAME    "ZM Vectorize Suite"
#define ZM_VECTORIZE_SUITE_VERSION 1

/* This suite is optional. */
typedef struct ZMVectorizeSuite {
    /* 0: 1 when the art is an image-tracing object (a plug-in group made by the host's image
       tracing plug-in), else 0. ZM_ERR_BAD_ARGUMENT for a null pointer or a handle naming no
       art; ZM_ERR_NO_DOCUMENT when no document is open. */
    ZMErr(ZM_API *IsTracingArt)(ZMArtHandle art, ZMBool *isTracing);
} ZMVectorizeSuite;

#ifdef __cplusplus
}
#endif
