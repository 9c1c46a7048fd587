#pragma once
/* Text-engine ranges of text, and iterators over their runs and words. */
#include "ZMTypes.h"

#ifdef __cplusplus
extern "C" {
#endif

#define ZM_KRX_TEXT_RANGE_SUITE_NAME    "KRX TextRange Suite"
#define ZM_KRX_TEXT_RANGE_SUITE_VERSION 1

#define ZM_KRX_TEXT_RANGES_SUITE_NAME    "KRX TextRanges Suite"
#define ZM_KRX_TEXT_RANGES_SUITE_VERSION 1

#define ZM_KRX_TEXT_RANGES_ITERATOR_SUITE_NAME    "KRX TextRangesIterator Suite"
#define ZM_KRX_TEXT_RANGES_ITERATOR_SUITE_VERSION 1

#define ZM_KRX_TEXT_RUNS_ITERATOR_SUITE_NAME    "KRX TextRunsIterator Suite"
#define ZM_KRX_TEXT_RUNS_ITERATOR_SUITE_VERSION 1

#define ZM_KRX_WORDS_ITERATOR_SUITE_NAME    "KRX WordsIterator Suite"
#define ZM_KRX_WORDS_ITERATOR_SUITE_VERSION 1

#ifdef __cplusplus
}
#endif
