#pragma once
/* The brushes a document holds. */
#include "ZMArtTypes.h"
#include "ZMLiveEffectSuite.h"

#ifdef __cplusplus
extern "C" {
#endif

#define ZM_BRUSH_MGR_SUITE_NAME    "ZM Brush Mgr Suite"
#define ZM_BRUSH_MGR_SUITE_VERSION 4

/* A kind of brush ("&Art Brush"): the same kind is always the same handle, and it lives as
   long as the host. */
typedef struct ZMBrushTypeOpaque *ZMBrushTypeHandle;

/* Entries that take a brush or an effect work on the current document (ZM_ERR_NO_DOCUMENT
   when none is open); a brush or effect of no art of it is ZM_ERR_BAD_ARGUMENT. */
typedef struct ZMBrushMgrSuite {
    /* 0 */ ZMErr(ZM_API *CountBrushes)(int32_t *count);
    /* 1: ZM_ERR_BAD_ARGUMENT outside 0..count-1. */
    ZMErr(ZM_API *GetNthBrush)(int32_t index, ZMBrushHandle *brush);
    /* 2: the brush an effect draws with; a null handle when the effect is not a brush. */
    ZMErr(ZM_API *GetBrushForLiveEffect)(ZMLiveEffectHandle effect, ZMBrushHandle *brush);
    /* 3: into a string the caller made. */
    ZMErr(ZM_API *GetBrushName)(ZMBrushHandle brush, ZMUnicodeString name);
    /* 4 */ ZMErr(ZM_API *GetBrushType)(ZMBrushHandle brush, ZMBrushTypeHandle *type);
    /* 5: zero-terminated UTF-8, owned by the host, as the brush type was written, its "&"
       included ("&Art Brush"). */
    ZMErr(ZM_API *GetBrushTypeTitle)(ZMBrushTypeHandle type, const char **title);
} ZMBrushMgrSuite;

#ifdef __cplusplus
}
#endif
