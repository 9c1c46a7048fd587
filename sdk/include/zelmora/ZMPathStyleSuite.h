#pragma once
/* Path styles: the fill and stroke paint of art. */
#include "ZMArtTypes.h"
#include "ZMTypes.h"

#ifdef __cplusplus
extern "C" {
#endif

#define ZM_PATH_STYLE_SUITE_NAME    "ZM Path Style Suite"
#define ZM_PATH_STYLE_SUITE_VERSION 13

typedef struct ZMPathStyleSuite {
    /* 0: how the art is painted. Colour handles (custom colours, patterns, gradients) name
       the document's resources and stay valid until it closes. Art that paints nothing of
       its own (a group, placed art) has neither fill nor stroke. ZM_ERR_BAD_ARGUMENT for a
       null pointer or a handle naming no art; ZM_ERR_NO_DOCUMENT when no document is open. */
    ZMErr(ZM_API *GetPathStyle)(ZMArtHandle art, ZMPathStyle *style);
} ZMPathStyleSuite;

#ifdef __cplusplus
}
#endif
