#pragma once
/* Colour spaces: the colour space and colorants of images, swatches and gradients. */
#include "ZMArtTypes.h"
#include "ZMTypes.h"

#ifdef __cplusplus
extern "C" {
#endif

#define ZM_COLOR_SPACE_SUITE_NAME    "ZM Color Space Suite"
#define ZM_COLOR_SPACE_SUITE_VERSION 7

/* Colour space families. */
#define ZM_COLOR_SPACE_GRAY       1
#define ZM_COLOR_SPACE_RGB        2
#define ZM_COLOR_SPACE_LAB        3
#define ZM_COLOR_SPACE_CMYK       4
#define ZM_COLOR_SPACE_SEPARATION 5 /* one named ink */
#define ZM_COLOR_SPACE_DEVICE_N   6 /* several inks, each a separation member */
#define ZM_COLOR_SPACE_INDEXED    7 /* a palette over a base space */

/* A colour space of a document; it stays valid until its document closes, and the same
   space is always the same handle. Entries answer ZM_ERR_NO_DOCUMENT when no document is
   open and ZM_ERR_BAD_ARGUMENT for a null pointer or a handle naming nothing of the current
   document (an index outside 0..count-1 included). */
typedef struct ZMColorSpaceOpaque *ZMColorSpaceHandle;

typedef struct ZMColorSpaceSuite {
    /* 0: ZM_COLOR_SPACE_... */
    ZMErr(ZM_API *GetColorSpaceFamily)(ZMColorSpaceHandle space, int16_t *family);
    /* 1: the inks: gray 1 ("Gray"), RGB 3 ("Red", "Green", "Blue"), Lab 3 ("L", "a", "b"),
       CMYK 4 ("Cyan", "Magenta", "Yellow", "Black"), a separation its one ink, DeviceN its
       members' inks in order, indexed those of its base. */
    ZMErr(ZM_API *CountColorants)(ZMColorSpaceHandle space, int32_t *count);
    /* 2: into a string the caller made. */
    ZMErr(ZM_API *GetColorantName)(ZMColorSpaceHandle space, int32_t index,
                                   ZMUnicodeString name);
    /* 3: an indexed space's base, a separation's alternate space (what its ink looks like
       in process colour); null for the other families. */
    ZMErr(ZM_API *GetBaseColorSpace)(ZMColorSpaceHandle space, ZMColorSpaceHandle *base);
    /* 4: a DeviceN space's members; 0 for the other families. */
    ZMErr(ZM_API *CountColorSpaceMembers)(ZMColorSpaceHandle space, int32_t *count);
    /* 5 */
    ZMErr(ZM_API *GetNthColorSpaceMember)(ZMColorSpaceHandle space, int32_t index,
                                          ZMColorSpaceHandle *member);
    /* 6: a swatch's space: a spot colour is a separation whose ink is the swatch's name and
       whose alternate is its model's space; a process colour is its model's space. */
    ZMErr(ZM_API *GetCustomColorSpace)(ZMCustomColorHandle color, ZMColorSpaceHandle *space);
    /* 7: a gradient's space: DeviceN whose members are the distinct spaces of its stops'
       colours (as 6 for swatches; gray, RGB or CMYK for the others; patterns and gradients
       have none), in stop order. A gradient without stops has no members. */
    ZMErr(ZM_API *GetGradientColorSpace)(ZMGradientHandle gradient, ZMColorSpaceHandle *space);
} ZMColorSpaceSuite;

#ifdef __cplusplus
}
#endif
