#pragma once
/* Text-engine glyphs, and the glyph runs of composed text. */
#include "KRXArraySuites.h"
#include "KRXTypes.h"
#include "ZMTypes.h"

#ifdef __cplusplus
extern "C" {
#endif

#define ZM_KRX_GLYPH_RUN_SUITE_NAME    "KRX GlyphRun Suite"
#define ZM_KRX_GLYPH_RUN_SUITE_VERSION 1

/* The glyphs of one run of a line: one per character, read from the font program's character
   map (the host composes no ligatures). Glyph 0 is the font's missing glyph, which a font
   that is not installed gives for every character. */
typedef struct KRXGlyphRunSuite {
    /* 0 */ ZMErr(ZM_API *AddRef)(KRXGlyphRunRef run);
    /* 1 */ ZMErr(ZM_API *Release)(KRXGlyphRunRef run);
    /* 2: a new reference */
    ZMErr(ZM_API *GetFont)(KRXGlyphRunRef run, KRXFontRef *font);
    /* 3: points */
    ZMErr(ZM_API *GetFontSize)(KRXGlyphRunRef run, double *size);
    /* 4 */ ZMErr(ZM_API *GetSize)(KRXGlyphRunRef run, int32_t *size);
    /* 5: a new array of the glyph ids, in text order */
    ZMErr(ZM_API *GetGlyphIDs)(KRXGlyphRunRef run, KRXArrayGlyphIDRef *glyphs);
    /* 6: the characters the run shows (a new reference) */
    ZMErr(ZM_API *GetTextRange)(KRXGlyphRunRef run, KRXTextRangeRef *range);
} KRXGlyphRunSuite;

#define ZM_KRX_GLYPH_RUNS_ITERATOR_SUITE_NAME    "KRX GlyphRunsIterator Suite"
#define ZM_KRX_GLYPH_RUNS_ITERATOR_SUITE_VERSION 1

/* The glyph runs of a line, one per run of its text, in text order. */
KRX_ITERATOR_SUITE(GlyphRunsIterator, KRXTextLineRef, KRXGlyphRunRef)

#define ZM_KRX_GLYPH_SUITE_NAME    "KRX Glyph Suite"
#define ZM_KRX_GLYPH_SUITE_VERSION 1

typedef struct KRXGlyphSuite {
    /* 0 */ ZMErr(ZM_API *AddRef)(KRXGlyphRef glyph);
    /* 1 */ ZMErr(ZM_API *Release)(KRXGlyphRef glyph);
    /* 2: the id in its font's program; 0 is the missing glyph */
    ZMErr(ZM_API *GetGlyphID)(KRXGlyphRef glyph, KRXGlyphID *id);
    /* 3: a new reference */
    ZMErr(ZM_API *GetFont)(KRXGlyphRef glyph, KRXFontRef *font);
} KRXGlyphSuite;

#define ZM_KRX_GLYPHS_SUITE_NAME    "KRX Glyphs Suite"
#define ZM_KRX_GLYPHS_SUITE_VERSION 1

/* The glyphs of a range's characters, one per character, in text order. */
typedef struct KRXGlyphsSuite {
    /* 0 */
    ZMErr(ZM_API *CreateOfRange)(KRXTextRangeRef range, KRXGlyphsRef *glyphs);
    /* 1 */ ZMErr(ZM_API *AddRef)(KRXGlyphsRef glyphs);
    /* 2 */ ZMErr(ZM_API *Release)(KRXGlyphsRef glyphs);
    /* 3 */ ZMErr(ZM_API *GetSize)(KRXGlyphsRef glyphs, int32_t *size);
    /* 4: index outside 0..size-1 is ZM_ERR_BAD_ARGUMENT */
    ZMErr(ZM_API *Item)(KRXGlyphsRef glyphs, int32_t index, KRXGlyphRef *glyph);
} KRXGlyphsSuite;

#define ZM_KRX_GLYPHS_ITERATOR_SUITE_NAME    "KRX GlyphsIterator Suite"
#define ZM_KRX_GLYPHS_ITERATOR_SUITE_VERSION 1

KRX_ITERATOR_SUITE(GlyphsIterator, KRXGlyphsRef, KRXGlyphRef)

#ifdef __cplusplus
}
#endif
