#pragma once
/* Text-engine search and replace over stories. */
#include "KRXTypes.h"
#include "ZMTypes.h"

#ifdef __cplusplus
extern "C" {
#endif

#define ZM_KRX_FIND_SUITE_NAME    "KRX Find Suite"
#define ZM_KRX_FIND_SUITE_VERSION 101

typedef struct KRXFindSuite {
    /* 0: the first place at or after character from (code points from the range's start)
       where the range holds text, UTF-8, exactly (case and accents count). Found: *start is
       where it starts and *match a new sub-range over it. Not found: *start is -1 and *match
       null. Empty or malformed text, or from outside 0..size, is ZM_ERR_BAD_ARGUMENT. */
    ZMErr(ZM_API *FindText)(KRXTextRangeRef range, const char *text, int32_t from,
                            int32_t *start, KRXTextRangeRef *match);
} KRXFindSuite;

#ifdef __cplusplus
}
#endif
