#pragma once
/* Dictionaries: keyed values kept with a document or an art object. */
#include "ZMTypes.h"

#ifdef __cplusplus
extern "C" {
#endif

#define ZM_DICTIONARY_SUITE_NAME    "ZM Dictionary Suite"
#define ZM_DICTIONARY_SUITE_VERSION 8

#ifdef __cplusplus
}
#endif
