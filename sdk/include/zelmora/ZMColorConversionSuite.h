#pragma once
/* Conversions of colours between colour models. */
#include "ZMDocumentSuite.h"
#include "ZMTypes.h"

#ifdef __cplusplus
extern "C" {
#endif

#define ZM_OVERRIDE_COLOR_CONVERSION_SUITE_NAME    "Override ZM Color Conversion Suite"
#define ZM_OVERRIDE_COLOR_CONVERSION_SUITE_VERSION 7

typedef struct ZMColorConversionSuite {
    /* 0: the profile's description, into a string the caller made. ZM_ERR_BAD_ARGUMENT for a
       null handle or one of no profile of the current document. */
    ZMErr(ZM_API *GetProfileName)(ZMColorProfile profile, ZMUnicodeString name);
} ZMColorConversionSuite;

#ifdef __cplusplus
}
#endif
