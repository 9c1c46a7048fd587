#pragma once
/* Numbers and measurements formatted for display. */
#include "ZMTypes.h"

#ifdef __cplusplus
extern "C" {
#endif

#define ZM_STRING_FORMAT_UTILS_SUITE_NAME    "ZM String Format Utils Suite"
#define ZM_STRING_FORMAT_UTILS_SUITE_VERSION 3

/* A number formatter for the host's locale as it was when the formatter was made. */
typedef struct ZMNumberFormatOpaque *ZMNumberFormat;

/* Formatter options, or-ed together. */
#define ZM_NUMBER_FORMAT_DEFAULT     0 /* the locale's grouping of thousands: "1,234" */
#define ZM_NUMBER_FORMAT_NO_GROUPING 1 /* digits only: "1234" */

/* Entries that fill a string write into one the caller made. A formatter handle the host did
   not make is ZM_ERR_BAD_ARGUMENT; an unknown option bit too. */
typedef struct ZMStringFormatUtilsSuite {
    /* 0: a new formatter, owned by the caller until DisposeNumberFormat. */
    ZMErr(ZM_API *NewNumberFormat)(int32_t options, ZMNumberFormat *format);
    /* 1: null is ignored. */
    ZMErr(ZM_API *DisposeNumberFormat)(ZMNumberFormat format);
    /* 2: a whole number ("1,234", or "1.234" in German). */
    ZMErr(ZM_API *FormatInteger)(ZMNumberFormat format, int32_t value, ZMUnicodeString text);
    /* 3: exactly `decimals` decimals (0-15), rounded half to even; a value that is not finite
       is ZM_ERR_BAD_ARGUMENT. */
    ZMErr(ZM_API *FormatReal)(ZMNumberFormat format, double value, int32_t decimals,
                              ZMUnicodeString text);
    /* 4: the whole text read as a number in the formatter's locale, grouping accepted;
       ZM_ERR_BAD_ARGUMENT when it is not one, the value then left as it was. */
    ZMErr(ZM_API *ParseNumber)(ZMNumberFormat format, ZMUnicodeString text, double *value);
    /* 5: the formatter's locale as a language tag ("en-US"). */
    ZMErr(ZM_API *GetFormatLocale)(ZMNumberFormat format, ZMUnicodeString tag);
} ZMStringFormatUtilsSuite;

#ifdef __cplusplus
}
#endif
