#pragma once
/* Matching art: the art objects of a document that fit a description. */
#include "ZMArtTypes.h"
#include "ZMTypes.h"

#ifdef __cplusplus
extern "C" {
#endif

#define ZM_MATCHING_ART_SUITE_NAME    "ZM Matching Art Suite"
#define ZM_MATCHING_ART_SUITE_VERSION 7

/* What one art object must be to match: of type (ZM_ART_..., or ZM_ART_ANY), with the
   attribute bits under mask equal to value. Mask ZM_ART_COMPOUND_MEMBER, value 0 leaves out
   the members of compound paths; mask 0 takes everything. 12 bytes. */
typedef struct ZMMatchCriterion {
    int16_t type;
    int16_t reserved;
    uint32_t mask;
    uint32_t value;
} ZMMatchCriterion;

/* Results are the art objects that fit at least one of the count criteria, each once, in
   document order: an object before what it holds, the topmost layer first. Members of groups
   and compound paths and the result art of plug-in groups are included; the layers' own
   groups and definitions (symbols, patterns, masks, text frames' paths) are not. *matches is
   a new memory handle (ZM MdMemory Suite) holding *matchCount art handles (ZMArtHandle), which
   the caller disposes of; with no match it is null and *matchCount 0, and there is nothing to
   dispose of. ZM_ERR_BAD_ARGUMENT for a null pointer or count below 1; ZM_ERR_NO_DOCUMENT
   when no document is open; ZM_ERR_NO_MEMORY when the handle cannot be made. */
typedef struct ZMMatchingArtSuite {
    /* 0: matching art of the layers of list (ZM Layer List). */
    ZMErr(ZM_API *GetMatchingArtOfLayerList)(ZMLayerList list, const ZMMatchCriterion *criteria,
                                             int32_t count, ZMMdMemoryHandle *matches,
                                             int32_t *matchCount);
    /* 1: matching art of the whole current document. */
    ZMErr(ZM_API *GetMatchingArt)(const ZMMatchCriterion *criteria, int32_t count,
                                  ZMMdMemoryHandle *matches, int32_t *matchCount);
    /* 2: the selected art of the current document (what is held by selected art is
       selected too, so it is included). */
    ZMErr(ZM_API *GetSelectedArt)(ZMMdMemoryHandle *matches, int32_t *matchCount);
} ZMMatchingArtSuite;

#ifdef __cplusplus
}
#endif
