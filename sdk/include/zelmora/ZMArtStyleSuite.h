#pragma once
/* Graphic styles on art, and the parser that splits a style into its fills, strokes and effects. */
#include "ZMArtTypes.h"
#include "ZMLiveEffectSuite.h"

#ifdef __cplusplus
extern "C" {
#endif

#define ZM_ART_STYLE_SUITE_NAME    "ZM Art Style Suite"
#define ZM_ART_STYLE_SUITE_VERSION 7

#define ZM_ART_STYLE_PARSER_SUITE_NAME    "ZM Art Style Parser Suite"
#define ZM_ART_STYLE_PARSER_SUITE_VERSION 8

/* Kinds of art style. */
#define ZM_ART_STYLE_PLAIN  1 /* a fill and a stroke and nothing else */
#define ZM_ART_STYLE_ACTIVE 2 /* effects change the paint, a brush on the stroke for one */

/* Every art object has a style. Objects with the same named graphic style and the same
   appearance share one; every other object has an anonymous one of its own. A style handle
   stays valid until its document closes. Every entry needs the current document
   (ZM_ERR_NO_DOCUMENT when none is open); a style of none of its art is ZM_ERR_BAD_ARGUMENT. */
typedef struct ZMArtStyleSuite {
    /* 0: art of the current document. */
    ZMErr(ZM_API *GetArtStyle)(ZMArtHandle art, ZMArtStyleHandle *style);
    /* 1: the graphic style's name into a string the caller made (empty for an anonymous
       style), and whether the style is anonymous. */
    ZMErr(ZM_API *GetArtStyleName)(ZMArtStyleHandle style, ZMUnicodeString name,
                                   ZMBool *anonymous);
    /* 2: ZM_ART_STYLE_... */
    ZMErr(ZM_API *GetArtStyleKind)(ZMArtStyleHandle style, int16_t *kind);
    /* 3: the style's fill and stroke. */
    ZMErr(ZM_API *GetPathStyle)(ZMArtStyleHandle style, ZMPathStyle *pathStyle);
    /* 4: blending mode (ZM_BLEND_... of the blend style suite) and opacity 0..1. */
    ZMErr(ZM_API *GetArtStyleBlend)(ZMArtStyleHandle style, int32_t *mode, double *opacity);
} ZMArtStyleSuite;

/* A parser holds one parsed style at a time. */
typedef struct ZMStyleParserOpaque *ZMStyleParser;
/* One fill or stroke of a parsed style; valid until its parser parses again or is
   disposed. */
typedef struct ZMParserPaintFieldOpaque *ZMParserPaintField;

/* A parser or field handle the host did not make is ZM_ERR_BAD_ARGUMENT. */
typedef struct ZMArtStyleParserSuite {
    /* 0: owned by the caller until DisposeParser. */
    ZMErr(ZM_API *NewParser)(ZMStyleParser *parser);
    /* 1: null is ignored. */
    ZMErr(ZM_API *DisposeParser)(ZMStyleParser parser);
    /* 2: a style of the current document (ZM_ERR_NO_DOCUMENT when none is open). */
    ZMErr(ZM_API *ParseStyle)(ZMStyleParser parser, ZMArtStyleHandle style);
    /* 3: the fill field (when the style fills) and then the stroke field (when it strokes);
       0 before anything is parsed. */
    ZMErr(ZM_API *CountPaintFields)(ZMStyleParser parser, int32_t *count);
    /* 4: ZM_ERR_BAD_ARGUMENT outside 0..count-1. */
    ZMErr(ZM_API *GetNthPaintField)(ZMStyleParser parser, int32_t index,
                                    ZMParserPaintField *field);
    /* 5 */ ZMErr(ZM_API *IsFill)(ZMParserPaintField field, ZMBool *fill);
    /* 6 */ ZMErr(ZM_API *IsStroke)(ZMParserPaintField field, ZMBool *stroke);
    /* 7: ZM_ERR_BAD_ARGUMENT for a stroke field. */
    ZMErr(ZM_API *GetFill)(ZMParserPaintField field, ZMFillStyle *fill);
    /* 8: ZM_ERR_BAD_ARGUMENT for a fill field. */
    ZMErr(ZM_API *GetStroke)(ZMParserPaintField field, ZMStrokeStyle *stroke);
    /* 9 */ ZMErr(ZM_API *CountLiveEffects)(ZMParserPaintField field, int32_t *count);
    /* 10: the effect at an index, a null handle when the field has no effect there;
       ZM_ERR_BAD_ARGUMENT for a negative index. */
    ZMErr(ZM_API *GetLiveEffect)(ZMParserPaintField field, int32_t index,
                                 ZMLiveEffectHandle *effect);
    /* 11: a new dictionary of the parsed style's blending, owned by the caller (the
       dictionary suite's Release), with the integer entry "Mode" and the real entry
       "Opacity". ZM_ERR_NOT_FOUND before anything is parsed. */
    ZMErr(ZM_API *GetBlendDictionary)(ZMStyleParser parser, ZMDictionaryRef *dictionary);
} ZMArtStyleParserSuite;

#ifdef __cplusplus
}
#endif
