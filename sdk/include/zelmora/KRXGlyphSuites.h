#pragma once
/* Text-engine glyphs, and the glyph runs of composed text. */
#include "ZMTypes.h"

#ifdef __cplusplus
extern "C" {
#endif

#define ZM_KRX_GLYPH_RUN_SUITE_NAME    "KRX GlyphRun Suite"
#define ZM_KRX_GLYPH_RUN_SUITE_VERSION 1

#define ZM_KRX_GLYPH_RUNS_ITERATOR_SUITE_NAME    "KRX GlyphRunsIterator Suite"
#define ZM_KRX_GLYPH_RUNS_ITERATOR_SUITE_VERSION 1

#define ZM_KRX_GLYPH_SUITE_NAME    "KRX Glyph Suite"
#define ZM_KRX_GLYPH_SUITE_VERSION 1

#define ZM_KRX_GLYPHS_SUITE_NAME    "KRX Glyphs Suite"
#define ZM_KRX_GLYPHS_SUITE_VERSION 1

#define ZM_KRX_GLYPHS_ITERATOR_SUITE_NAME    "KRX GlyphsIterator Suite"
#define ZM_KRX_GLYPHS_ITERATOR_SUITE_VERSION 1

#ifdef __cplusplus
}
#endif
