#pragma once
/* Conversions of text between byte encodings. */
#include "ZMTypes.h"

#ifdef __cplusplus
extern "C" {
#endif

#define ZM_CHARACTER_ENCODING_SUITE_NAME    "ZM Character Encoding Suite"
#define ZM_CHARACTER_ENCODING_SUITE_VERSION 5

#ifdef __cplusplus
}
#endif
