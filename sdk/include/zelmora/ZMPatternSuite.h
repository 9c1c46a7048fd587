#pragma once
/* Patterns: the document's pattern definitions. */
#include "ZMArtTypes.h"

#ifdef __cplusplus
extern "C" {
#endif

#define ZM_PATTERN_SUITE_NAME    "ZM Pattern Suite"
#define ZM_PATTERN_SUITE_VERSION 10

/* Every entry works on the current document (ZM_ERR_NO_DOCUMENT when none is open). A
   handle stays valid until its document closes; one of no pattern of the current document
   is ZM_ERR_BAD_ARGUMENT, and so is an index outside 0..count-1. */
typedef struct ZMPatternSuite {
    /* 0 */ ZMErr(ZM_API *CountPatterns)(int32_t *count);
    /* 1 */ ZMErr(ZM_API *GetNthPattern)(int32_t index, ZMPatternHandle *pattern);
    /* 2: into a string the caller made. */
    ZMErr(ZM_API *GetPatternName)(ZMPatternHandle pattern, ZMUnicodeString name);
    /* 3: the group that defines one tile, outside the layers; null for a pattern with no
       art. */
    ZMErr(ZM_API *GetPatternArt)(ZMPatternHandle pattern, ZMArtHandle *art);
} ZMPatternSuite;

#ifdef __cplusplus
}
#endif
