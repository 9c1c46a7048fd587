#pragma once
/* Text-engine ranges of text, and iterators over their runs and words. */
#include "KRXTypes.h"
#include "ZMTypes.h"

#ifdef __cplusplus
extern "C" {
#endif

#define ZM_KRX_TEXT_RANGE_SUITE_NAME    "KRX TextRange Suite"
#define ZM_KRX_TEXT_RANGE_SUITE_VERSION 1

typedef struct KRXTextRangeSuite {
    /* 0 */ ZMErr(ZM_API *AddRef)(KRXTextRangeRef range);
    /* 1 */ ZMErr(ZM_API *Release)(KRXTextRangeRef range);
    /* 2: characters in the range (Unicode code points). */
    ZMErr(ZM_API *GetSize)(KRXTextRangeRef range, int32_t *size);
    /* 3: the text in UTF-8 into the caller's buffer of bufferSize bytes with a closing NUL;
       text that does not fit is cut after the last whole character that does. bufferSize
       below 1 or a null buffer is ZM_ERR_BAD_ARGUMENT. */
    ZMErr(ZM_API *GetContents)(KRXTextRangeRef range, char *buffer, int32_t bufferSize);
    /* 4: an inspector of the character features over the range (a new reference). */
    ZMErr(ZM_API *GetCharInspector)(KRXTextRangeRef range, KRXCharInspectorRef *inspector);
} KRXTextRangeSuite;

#define ZM_KRX_TEXT_RANGES_SUITE_NAME    "KRX TextRanges Suite"
#define ZM_KRX_TEXT_RANGES_SUITE_VERSION 1

/* A list of ranges. The list holds copies: Append copies the range, Item hands out a new range
   over the copy's text. */
typedef struct KRXTextRangesSuite {
    /* 0: a new, empty list */
    ZMErr(ZM_API *Create)(KRXTextRangesRef *ranges);
    /* 1 */ ZMErr(ZM_API *AddRef)(KRXTextRangesRef ranges);
    /* 2 */ ZMErr(ZM_API *Release)(KRXTextRangesRef ranges);
    /* 3 */ ZMErr(ZM_API *GetSize)(KRXTextRangesRef ranges, int32_t *size);
    /* 4: index outside 0..size-1 is ZM_ERR_BAD_ARGUMENT */
    ZMErr(ZM_API *Item)(KRXTextRangesRef ranges, int32_t index, KRXTextRangeRef *range);
    /* 5: adds a copy of the range at the end */
    ZMErr(ZM_API *Append)(KRXTextRangesRef ranges, KRXTextRangeRef range);
} KRXTextRangesSuite;

#define ZM_KRX_TEXT_RANGES_ITERATOR_SUITE_NAME    "KRX TextRangesIterator Suite"
#define ZM_KRX_TEXT_RANGES_ITERATOR_SUITE_VERSION 1

#define ZM_KRX_TEXT_RUNS_ITERATOR_SUITE_NAME    "KRX TextRunsIterator Suite"
#define ZM_KRX_TEXT_RUNS_ITERATOR_SUITE_VERSION 1

#define ZM_KRX_WORDS_ITERATOR_SUITE_NAME    "KRX WordsIterator Suite"
#define ZM_KRX_WORDS_ITERATOR_SUITE_VERSION 1

/* The ranges of a list, in list order. */
KRX_ITERATOR_SUITE(TextRangesIterator, KRXTextRangesRef, KRXTextRangeRef)
/* The runs of a range: each a sub-range whose characters share one font, size and paint, in
   text order; a run without characters is skipped. */
KRX_ITERATOR_SUITE(TextRunsIterator, KRXTextRangeRef, KRXTextRangeRef)
/* The words of a range as the Unicode word rules find them, each a sub-range; blanks and
   punctuation between words are no words. */
KRX_ITERATOR_SUITE(WordsIterator, KRXTextRangeRef, KRXTextRangeRef)

#ifdef __cplusplus
}
#endif
