#pragma once
/* Custom colours: the document's named swatches, process or spot. */
#include "ZMArtTypes.h"

#ifdef __cplusplus
extern "C" {
#endif

#define ZM_CUSTOM_COLOR_SUITE_NAME    "ZM Custom Color Suite"
#define ZM_CUSTOM_COLOR_SUITE_VERSION 8

/* Kinds of custom colour. */
#define ZM_CUSTOM_COLOR_FOUR  0 /* CMYK */
#define ZM_CUSTOM_COLOR_THREE 1 /* RGB */
#define ZM_CUSTOM_COLOR_LAB   2

/* Flag bits. */
#define ZM_CUSTOM_COLOR_SPOT 1 /* a spot colour; without it a global process colour */

typedef struct ZMLabColor {
    double l; /* 0..100 */
    double a; /* -128..127 */
    double b; /* -128..127 */
} ZMLabColor;

typedef struct ZMCustomColor {
    int16_t kind; /* ZM_CUSTOM_COLOR_... */
    int16_t reserved[3];
    union {
        ZMFourColor four;
        ZMThreeColor three;
        ZMLabColor lab;
    } c;
    int32_t flags; /* ZM_CUSTOM_COLOR_SPOT */
    int32_t reserved2;
} ZMCustomColor;

/* Every entry works on the current document (ZM_ERR_NO_DOCUMENT when none is open). A
   handle stays valid until its document closes; one of no swatch of the current document is
   ZM_ERR_BAD_ARGUMENT. */
typedef struct ZMCustomColorSuite {
    /* 0 */ ZMErr(ZM_API *CountCustomColors)(int32_t *count);
    /* 1: in the order of the document's swatches; ZM_ERR_BAD_ARGUMENT outside 0..count-1. */
    ZMErr(ZM_API *GetNthCustomColor)(int32_t index, ZMCustomColorHandle *color);
    /* 2 */ ZMErr(ZM_API *GetCustomColor)(ZMCustomColorHandle color, ZMCustomColor *record);
    /* 3: into a string the caller made. */
    ZMErr(ZM_API *GetCustomColorName)(ZMCustomColorHandle color, ZMUnicodeString name);
    /* 4: the first swatch of that exact name; ZM_ERR_NOT_FOUND when there is none, *color
       then left as it was. */
    ZMErr(ZM_API *FindCustomColor)(ZMUnicodeString name, ZMCustomColorHandle *color);
} ZMCustomColorSuite;

#ifdef __cplusplus
}
#endif
