#pragma once
/* References to the text engine's objects. Every object the engine hands out carries a count
   of references: a reference returned by an entry is the caller's, given back with the
   Release entry of the object's own suite; AddRef makes one more. A reference the host never
   handed out, or one whose last reference is gone, is ZM_ERR_BAD_ARGUMENT. */
#include "ZMTypes.h"

#ifdef __cplusplus
extern "C" {
#endif

typedef struct KRXTextFrameOpaque *KRXTextFrameRef;
typedef struct KRXTextRangeOpaque *KRXTextRangeRef;
typedef struct KRXCharInspectorOpaque *KRXCharInspectorRef;
typedef struct KRXFontOpaque *KRXFontRef;
typedef struct KRXApplicationPaintOpaque *KRXApplicationPaintRef;
typedef struct KRXKinsokuOpaque *KRXKinsokuRef;
typedef struct KRXMojiKumiOpaque *KRXMojiKumiRef;
typedef struct KRXMojiKumiSetOpaque *KRXMojiKumiSetRef;
typedef struct KRXTabStopsOpaque *KRXTabStopsRef;
typedef struct KRXTabStopOpaque *KRXTabStopRef;
typedef struct KRXTabStopsIteratorOpaque *KRXTabStopsIteratorRef;
typedef struct KRXStoriesOpaque *KRXStoriesRef;
typedef struct KRXStoryOpaque *KRXStoryRef;
typedef struct KRXTextRangesOpaque *KRXTextRangesRef;
typedef struct KRXTextRangesIteratorOpaque *KRXTextRangesIteratorRef;
typedef struct KRXTextRunsIteratorOpaque *KRXTextRunsIteratorRef;
typedef struct KRXWordsIteratorOpaque *KRXWordsIteratorRef;
typedef struct KRXTextFramesIteratorOpaque *KRXTextFramesIteratorRef;
typedef struct KRXTextLineOpaque *KRXTextLineRef;
typedef struct KRXTextLinesIteratorOpaque *KRXTextLinesIteratorRef;
typedef struct KRXParagraphOpaque *KRXParagraphRef;
typedef struct KRXParagraphsIteratorOpaque *KRXParagraphsIteratorRef;
typedef struct KRXParaFeaturesOpaque *KRXParaFeaturesRef;
typedef struct KRXParaInspectorOpaque *KRXParaInspectorRef;
typedef struct KRXParaStyleOpaque *KRXParaStyleRef;
typedef struct KRXParaStylesOpaque *KRXParaStylesRef;
typedef struct KRXParaStylesIteratorOpaque *KRXParaStylesIteratorRef;
typedef struct KRXCharFeaturesOpaque *KRXCharFeaturesRef;
typedef struct KRXCharStyleOpaque *KRXCharStyleRef;
typedef struct KRXCharStylesOpaque *KRXCharStylesRef;
typedef struct KRXCharStylesIteratorOpaque *KRXCharStylesIteratorRef;
typedef struct KRXGlyphOpaque *KRXGlyphRef;
typedef struct KRXGlyphsOpaque *KRXGlyphsRef;
typedef struct KRXGlyphsIteratorOpaque *KRXGlyphsIteratorRef;
typedef struct KRXGlyphRunOpaque *KRXGlyphRunRef;
typedef struct KRXGlyphRunsIteratorOpaque *KRXGlyphRunsIteratorRef;
typedef struct KRXKinsokuSetOpaque *KRXKinsokuSetRef;
typedef struct KRXCompFontOpaque *KRXCompFontRef;
typedef struct KRXCompFontSetOpaque *KRXCompFontSetRef;
typedef struct KRXCompFontClassOpaque *KRXCompFontClassRef;
typedef struct KRXCompFontClassSetOpaque *KRXCompFontClassSetRef;
typedef struct KRXCompFontComponentOpaque *KRXCompFontComponentRef;
typedef struct KRXSpellOpaque *KRXSpellRef;

typedef uint16_t KRXGlyphID;

/* An affine transform: x' = a x + c y + tx, y' = b x + d y + ty. */
typedef struct KRXRealMatrix {
    double a;
    double b;
    double c;
    double d;
    double tx;
    double ty;
} KRXRealMatrix;

/* Kinds of text frame. */
typedef int32_t KRXFrameType;
#define KRX_FRAME_TYPE_POINT   0 /* point text: a line that starts at a point */
#define KRX_FRAME_TYPE_IN_PATH 1 /* area text: text that flows inside a shape */
#define KRX_FRAME_TYPE_ON_PATH 2 /* text that runs along a path */

/* Every iterator suite has the same entries. An iterator walks a copy of what its source held
   when it was made; the items it hands out are new references, given back with the Release
   entry of the item's own suite. */
#define KRX_ITERATOR_SUITE(Name, SourceRef, ItemRef)                                      \
    typedef struct KRX##Name##Suite {                                                     \
        /* 0: a new iterator at the first item of source */                               \
        ZMErr(ZM_API *Create)(SourceRef source, KRX##Name##Ref * iterator);               \
        /* 1 */ ZMErr(ZM_API *AddRef)(KRX##Name##Ref iterator);                           \
        /* 2 */ ZMErr(ZM_API *Release)(KRX##Name##Ref iterator);                          \
        /* 3: 1 once the iterator is past its last item (at once when there is none) */  \
        ZMErr(ZM_API *IsDone)(KRX##Name##Ref iterator, int32_t * done);                   \
        /* 4: on to the next item; ZM_ERR_BAD_ARGUMENT when already done */               \
        ZMErr(ZM_API *Next)(KRX##Name##Ref iterator);                                     \
        /* 5: the current item; ZM_ERR_BAD_ARGUMENT when done */                          \
        ZMErr(ZM_API *Item)(KRX##Name##Ref iterator, ItemRef * item);                     \
    } KRX##Name##Suite;

/* Every suite of a named composition rule has the same entries. A new object is named "". */
#define KRX_NAMED_SUITE(Name)                                                              \
    typedef struct KRX##Name##Suite {                                                      \
        /* 0: a new object */                                                              \
        ZMErr(ZM_API *Create)(KRX##Name##Ref * object);                                    \
        /* 1 */ ZMErr(ZM_API *AddRef)(KRX##Name##Ref object);                              \
        /* 2 */ ZMErr(ZM_API *Release)(KRX##Name##Ref object);                             \
        /* 3: the name in UTF-8 with a closing NUL, cut after the last whole character     \
           that fits; bufferSize below 1 is ZM_ERR_BAD_ARGUMENT */                         \
        ZMErr(ZM_API *GetName)(KRX##Name##Ref object, char *buffer, int32_t bufferSize);   \
        /* 4: name in UTF-8; malformed UTF-8 is ZM_ERR_BAD_ARGUMENT */                     \
        ZMErr(ZM_API *SetName)(KRX##Name##Ref object, const char *name);                   \
    } KRX##Name##Suite;

/* Every set of named composition rules has the same entries. A set holds copies: Append
   copies the object as it is, Item hands out a new object with the copy's name. */
#define KRX_NAMED_SET_SUITE(Name, ItemRef)                                                 \
    typedef struct KRX##Name##Suite {                                                      \
        /* 0: a new, empty set */                                                          \
        ZMErr(ZM_API *Create)(KRX##Name##Ref * set);                                       \
        /* 1 */ ZMErr(ZM_API *AddRef)(KRX##Name##Ref set);                                 \
        /* 2 */ ZMErr(ZM_API *Release)(KRX##Name##Ref set);                                \
        /* 3 */ ZMErr(ZM_API *GetSize)(KRX##Name##Ref set, int32_t * size);                \
        /* 4: index outside 0..size-1 is ZM_ERR_BAD_ARGUMENT */                            \
        ZMErr(ZM_API *Item)(KRX##Name##Ref set, int32_t index, ItemRef * item);            \
        /* 5: adds a copy at the end */                                                    \
        ZMErr(ZM_API *Append)(KRX##Name##Ref set, ItemRef item);                           \
        /* 6: the index of the first item of that name, -1 when there is none */          \
        ZMErr(ZM_API *Find)(KRX##Name##Ref set, const char *name, int32_t *index);         \
    } KRX##Name##Suite;

#ifdef __cplusplus
}
#endif
