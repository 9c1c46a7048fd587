#pragma once
/* Conversions of colours between colour models, and the colour profiles they go through. */
#include "ZMDocumentSuite.h"

#ifdef __cplusplus
extern "C" {
#endif

#define ZM_OVERRIDE_COLOR_CONVERSION_SUITE_NAME    "Override ZM Color Conversion Suite"
#define ZM_OVERRIDE_COLOR_CONVERSION_SUITE_VERSION 7

/* Profile handles come from the document suite and belong to the current document; a null
   handle, or one of no profile of the current document, is ZM_ERR_BAD_ARGUMENT. Every entry
   needs a current document (ZM_ERR_NO_DOCUMENT). */
typedef struct ZMColorConversionSuite {
    /* 0: the profile's description ("sRGB IEC61966-2.1"), into a string the caller made. */
    ZMErr(ZM_API *GetProfileName)(ZMColorProfile profile, ZMUnicodeString name);
    /* 1: how many of the document's gray, RGB and CMYK profiles are set (0-3). */
    ZMErr(ZM_API *CountDocumentProfiles)(int32_t *count);
    /* 2: the profile the document uses for a colour model (the document suite's model codes:
       0 gray, 1 RGB, 2 CMYK); null when it has none. Another model is ZM_ERR_BAD_ARGUMENT. */
    ZMErr(ZM_API *GetProfileForModel)(int16_t model, ZMColorProfile *profile);
} ZMColorConversionSuite;

#ifdef __cplusplus
}
#endif
