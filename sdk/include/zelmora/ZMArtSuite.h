#pragma once
/* The art tree of a document: its art objects, their types, attributes and bounds. */
#include "ZMArtTypes.h"
#include "ZMTypes.h"

#ifdef __cplusplus
extern "C" {
#endif

#define ZM_ART_SUITE_NAME    "ZM Art Suite"
#define ZM_ART_SUITE_VERSION 17

/* Art types. Codes 4, 5, 6, 8 and 15 are reserved. */
typedef int16_t ZMArtType;
#define ZM_ART_UNKNOWN          0
#define ZM_ART_GROUP            1
#define ZM_ART_PATH             2
#define ZM_ART_COMPOUND_PATH    3
#define ZM_ART_PLACED           7
#define ZM_ART_RASTER           9
#define ZM_ART_PLUGIN_GROUP     10
#define ZM_ART_MESH             11
#define ZM_ART_TEXT_FRAME       12
#define ZM_ART_SYMBOL_INSTANCE  13
#define ZM_ART_FOREIGN_OBJECT   14
#define ZM_ART_CHART            16
/* In a matching criterion: art of any type. */
#define ZM_ART_ANY              (-1)

/* Attribute bits. */
#define ZM_ART_SELECTED         0x00000001u
#define ZM_ART_COMPOUND_MEMBER  0x00004000u /* a member of a compound path; read only */

/* An entry that works on one kind of art was given art of another type. */
#define ZM_ERR_WRONG_ART_TYPE ZM_FOUR_CHAR('T', 'Y', 'P', '?')

/* Art handles name art objects of the open documents and stay valid until their document
   closes. Every entry of this suite answers ZM_ERR_NO_DOCUMENT when no document is open and
   ZM_ERR_BAD_ARGUMENT for a null out-pointer or an art handle that names no art object.
   Navigation entries write a null handle, and succeed, where there is no such art. A layer's
   own group is not art: art at the top of a layer has no parent. */
typedef struct ZMArtSuite {
    /* 0: the art's type, ZM_ART_... */
    ZMErr(ZM_API *GetArtType)(ZMArtHandle art, ZMArtType *type);
    /* 1: the group, compound path or plug-in group holding the art; null at the top of a
       layer and at the top of a definition (an opacity mask's group, a symbol's art). */
    ZMErr(ZM_API *GetArtParent)(ZMArtHandle art, ZMArtHandle *parent);
    /* 2: the first member of a group or compound path. A plug-in group's one member is its
       result group, which holds what the plug-in made. */
    ZMErr(ZM_API *GetArtFirstChild)(ZMArtHandle art, ZMArtHandle *child);
    /* 3: the next member of the same parent, in document order. */
    ZMErr(ZM_API *GetArtSibling)(ZMArtHandle art, ZMArtHandle *sibling);
    /* 4: the member before it. */
    ZMErr(ZM_API *GetArtPriorSibling)(ZMArtHandle art, ZMArtHandle *sibling);
    /* 5: the art's attribute bits under mask; the bits outside mask read 0. */
    ZMErr(ZM_API *GetArtUserAttr)(ZMArtHandle art, uint32_t mask, uint32_t *attributes);
    /* 6: sets the bits under mask to those of attributes. Only ZM_ART_SELECTED can be set;
       selecting art selects (or deselects) everything it holds too. A mask with any other bit
       is ZM_ERR_BAD_ARGUMENT and changes nothing. */
    ZMErr(ZM_API *SetArtUserAttr)(ZMArtHandle art, uint32_t mask, uint32_t attributes);
    /* 7: what the art draws, in points: a path's curves to their extremes (closing segment
       included); the union of a group's members (a clip group's: of its clipping paths); an
       image's or text frame's frame. Art without geometry, such as an empty group, gives a
       rectangle of zeros. */
    ZMErr(ZM_API *GetArtBounds)(ZMArtHandle art, ZMRealRect *bounds);
    /* 8: 1 when the art is a graph (art of unknown type that draws a graph), else 0. */
    ZMErr(ZM_API *IsArtGraph)(ZMArtHandle art, ZMBool *isGraph);
    /* 9: the art's name (its label or id, empty when it has none) as a new string that the
       caller disposes of through the Unicode string suite. */
    ZMErr(ZM_API *GetArtName)(ZMArtHandle art, ZMUnicodeString *name);
    /* 10: the first art of the topmost layer that holds any, null when the document has no
       art. Its siblings are the rest of that layer's top-level art; the other layers' art is
       reached through the layer suite. */
    ZMErr(ZM_API *GetFirstArtOfDocument)(ZMArtHandle *art);
} ZMArtSuite;

#ifdef __cplusplus
}
#endif
