#pragma once
/* Foreign objects: art kept in a foreign format, and what can be read from it. */
#include "ZMArtTypes.h"
#include "ZMFontSuite.h"
#include "ZMTypes.h"

#ifdef __cplusplus
extern "C" {
#endif

#define ZM_FO_CONVERSION_SUITE_NAME    "ZM FO Conversion Suite"
#define ZM_FO_CONVERSION_SUITE_VERSION 3

/* Kinds of content item. */
#define ZM_FO_CONTENT_TRANSPARENCY 1 /* value.flag: the content is drawn with transparency */
#define ZM_FO_CONTENT_TEXT         2 /* value.flag: the content holds text */
#define ZM_FO_CONTENT_CUSTOM_COLOR 8 /* value.customColor: a swatch of the document */

typedef struct ZMFOContentItem {
    int32_t kind; /* ZM_FO_CONTENT_... */
    int32_t reserved;
    union {
        ZMBool flag;
        ZMCustomColorHandle customColor;
    } value;
} ZMFOContentItem;

/* A visitor returns 0 to go on; anything else ends the enumeration, which returns it. */
typedef ZMErr(ZM_API *ZMFOFontVisitor)(void *data, ZMFontKey font);
typedef ZMErr(ZM_API *ZMFOContentVisitor)(void *data, const ZMFOContentItem *item);

/* Every entry takes foreign object art (type 14): other art is ZM_ERR_WRONG_ART_TYPE, a null
   pointer or a handle naming no art ZM_ERR_BAD_ARGUMENT, and no open document
   ZM_ERR_NO_DOCUMENT. */
typedef struct ZMFOConversionSuite {
    /* 0: each font the content's styles name, once, in the order the content names them. */
    ZMErr(ZM_API *EnumerateFonts)(ZMArtHandle art, ZMFOFontVisitor visitor, void *data);
    /* 1: a transparency item, then a text item when the content holds text, then one custom
       colour item per swatch the content paints with, in the order met. */
    ZMErr(ZM_API *EnumerateContents)(ZMArtHandle art, ZMFOContentVisitor visitor, void *data);
} ZMFOConversionSuite;

#ifdef __cplusplus
}
#endif
