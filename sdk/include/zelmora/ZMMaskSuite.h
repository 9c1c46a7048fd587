#pragma once
/* Opacity masks on art. */
#include "ZMArtTypes.h"
#include "ZMTypes.h"

#ifdef __cplusplus
extern "C" {
#endif

#define ZM_MASK_SUITE_NAME    "ZM Mask Suite"
#define ZM_MASK_SUITE_VERSION 5

/* A mask handle is a counted reference: each one obtained (GetMask, AddRefMask) is given back
   with ReleaseMask. Entries answer ZM_ERR_BAD_ARGUMENT for a null pointer, an art handle
   naming no art or a mask handle not held, and ZM_ERR_NO_DOCUMENT when no document is open. */
typedef struct ZMMaskSuite {
    /* 0: the art's opacity mask; a null handle, and success, when it has none. */
    ZMErr(ZM_API *GetMask)(ZMArtHandle art, ZMMaskHandle *mask);
    /* 1: the mask's art: a group, outside the layers, whose members make the mask.
       ZM_ERR_NOT_FOUND when the masked art is gone (its document closed). */
    ZMErr(ZM_API *GetMaskArt)(ZMMaskHandle mask, ZMArtHandle *art);
    /* 2: one more reference to the mask. */
    ZMErr(ZM_API *AddRefMask)(ZMMaskHandle mask);
    /* 3: gives one reference back; the handle goes with the last one. */
    ZMErr(ZM_API *ReleaseMask)(ZMMaskHandle mask);
} ZMMaskSuite;

#ifdef __cplusplus
}
#endif
