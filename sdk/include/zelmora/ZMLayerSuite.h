#pragma once
/* Layers of a document, and the layer lists that order them. */
#include "ZMArtTypes.h"
#include "ZMTypes.h"

#ifdef __cplusplus
extern "C" {
#endif

#define ZM_LAYER_SUITE_NAME    "ZM Layer Suite"
#define ZM_LAYER_SUITE_VERSION 13

#define ZM_LAYER_LIST_SUITE_NAME    "ZM Layer List"
#define ZM_LAYER_LIST_SUITE_VERSION 4

/* Layers of the current document, index 0 the topmost. A layer handle stays valid until its
   document closes. Every entry answers ZM_ERR_NO_DOCUMENT when no document is open and
   ZM_ERR_BAD_ARGUMENT for a null out-pointer or a handle naming no layer of the current
   document. */
typedef struct ZMLayerSuite {
    /* 0 */
    ZMErr(ZM_API *CountLayers)(int32_t *count);
    /* 1: ZM_ERR_BAD_ARGUMENT for an index outside 0..count-1. */
    ZMErr(ZM_API *GetNthLayer)(int32_t index, ZMLayerHandle *layer);
    /* 2: the layer's title as a new string that the caller disposes of. */
    ZMErr(ZM_API *GetLayerTitle)(ZMLayerHandle layer, ZMUnicodeString *title);
    /* 3: the first art object of the layer (the layer's own group is not art); null when
       the layer is empty. */
    ZMErr(ZM_API *GetFirstArtOfLayer)(ZMLayerHandle layer, ZMArtHandle *art);
    /* 4: the layer new art goes to: the topmost. ZM_ERR_NOT_FOUND when the document has no
       layers. */
    ZMErr(ZM_API *GetCurrentLayer)(ZMLayerHandle *layer);
} ZMLayerSuite;

/* A layer list orders the layers of one document, topmost first; the matching art suite
   accepts it. It stays valid until its document closes. Codes as in the layer suite. */
typedef struct ZMLayerListSuite {
    /* 0: the current document's layer list. */
    ZMErr(ZM_API *GetCurrentLayerList)(ZMLayerList *list);
    /* 1 */
    ZMErr(ZM_API *CountLayersOfList)(ZMLayerList list, int32_t *count);
    /* 2: null when the list is empty. */
    ZMErr(ZM_API *GetFirstLayerOfList)(ZMLayerList list, ZMLayerHandle *layer);
    /* 3: the layer after layer in the list; null after the last. */
    ZMErr(ZM_API *GetNextLayerOfList)(ZMLayerList list, ZMLayerHandle layer, ZMLayerHandle *next);
} ZMLayerListSuite;

#ifdef __cplusplus
}
#endif
