#pragma once
/* Artboards: the pages of a document. */
#include "ZMArtTypes.h"

#ifdef __cplusplus
extern "C" {
#endif

#define ZM_ARTBOARD_SUITE_NAME    "ZM Artboard Suite"
#define ZM_ARTBOARD_SUITE_VERSION 3

/* A list is what the artboards were when it was made; it stays valid after its document
   closes. Indexes outside 0..count-1 are ZM_ERR_BAD_ARGUMENT. */
typedef struct ZMArtboardSuite {
    /* 0: the current document's artboards; the caller owns the list and gives it back with
       ReleaseArtboardList. ZM_ERR_NO_DOCUMENT when no document is open. */
    ZMErr(ZM_API *GetArtboardList)(ZMArtboardList *list);
    /* 1 */ ZMErr(ZM_API *ReleaseArtboardList)(ZMArtboardList list);
    /* 2 */ ZMErr(ZM_API *CountArtboards)(ZMArtboardList list, int32_t *count);
    /* 3: points. */
    ZMErr(ZM_API *GetArtboardBounds)(ZMArtboardList list, int32_t index, ZMRealRect *bounds);
    /* 4: into a string the caller made. */
    ZMErr(ZM_API *GetArtboardName)(ZMArtboardList list, int32_t index, ZMUnicodeString name);
} ZMArtboardSuite;

#ifdef __cplusplus
}
#endif
