#pragma once
/* Host Unicode strings: every text the plug-in shows or writes is held in one. */
#include "ZMTypes.h"

#ifdef __cplusplus
extern "C" {
#endif

#define ZM_UNICODE_STRING_SUITE_NAME    "ZM Unicode String Suite"
#define ZM_UNICODE_STRING_SUITE_VERSION 8

/* Byte encodings. */
typedef int32_t ZMStringEncoding;
#define ZM_ENCODING_PLATFORM 0 /* windows-1252; characters it cannot hold become "?" */
#define ZM_ENCODING_UTF8     1
/* The code pages that fonts write their names in, one per font script (ZMFontSuite.h). Like
   the platform encoding, a character one of them cannot hold becomes "?" on the way out. */
#define ZM_ENCODING_ROMAN               16 /* windows-1252 */
#define ZM_ENCODING_JAPANESE            17 /* Shift_JIS (932) */
#define ZM_ENCODING_TRADITIONAL_CHINESE 18 /* Big5 (950) */
#define ZM_ENCODING_SIMPLIFIED_CHINESE  19 /* GBK (936) */
#define ZM_ENCODING_KOREAN              20 /* 949 */
#define ZM_ENCODING_CYRILLIC            24 /* windows-1251 */
#define ZM_ENCODING_CENTRAL_EUROPEAN    25 /* windows-1250 */

/* A string made by an entry below is owned by the caller and given back with Dispose.
   A null handle is an empty string wherever a string is read. Lengths count UTF-16 units. */
typedef struct ZMUnicodeStringSuite {
    /* 0 */ ZMErr(ZM_API *NewEmpty)(ZMUnicodeString *result);
    /* 1: byteCount bytes (no NUL needed). ZM_ERR_BAD_ENCODING for an unknown selector or
       for bytes that are not valid in their encoding (every windows-1252 byte is). */
    ZMErr(ZM_API *NewFromBytes)(const char *bytes, int32_t byteCount, ZMStringEncoding encoding,
                                ZMUnicodeString *result);
    /* 2: the localized text of a key "$$$/Group/Name[/Platform]=Default text": the current
       locale's translation, else the default text after the first "=". */
    ZMErr(ZM_API *NewFromLocalizableKey)(const char *key, ZMUnicodeString *result);
    /* 3: null is ignored. */
    ZMErr(ZM_API *Dispose)(ZMUnicodeString string);
    /* 4 */ ZMErr(ZM_API *Copy)(ZMUnicodeString source, ZMUnicodeString *result);
    /* 5: target becomes a copy of source. */
    ZMErr(ZM_API *Assign)(ZMUnicodeString target, ZMUnicodeString source);
    /* 6 */ ZMErr(ZM_API *Append)(ZMUnicodeString target, ZMUnicodeString tail);
    /* 7 */ ZMErr(ZM_API *Length)(ZMUnicodeString string, int32_t *length);
    /* 8: negative, zero or positive as first sorts before, with or after second, in UTF-16
       code-unit order. */
    ZMErr(ZM_API *Compare)(ZMUnicodeString first, ZMUnicodeString second, int32_t *order);
    /* 9: the text in encoding into buffer (bufferSize bytes, a NUL always written when
       bufferSize > 0). *byteCount receives the full length without NUL; if that does not fit,
       the text is cut and ZM_ERR_BUFFER_TOO_SMALL returned. */
    ZMErr(ZM_API *ToBytes)(ZMUnicodeString string, ZMStringEncoding encoding, char *buffer,
                           int32_t bufferSize, int32_t *byteCount);
} ZMUnicodeStringSuite;

#ifdef __cplusplus
}
#endif
