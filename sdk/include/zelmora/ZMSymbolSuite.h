#pragma once
/* Symbols: the document's symbol definitions and their instances. */
#include "ZMTypes.h"

#ifdef __cplusplus
extern "C" {
#endif

#define ZM_SYMBOL_SUITE_NAME    "ZM Symbol Suite"
#define ZM_SYMBOL_SUITE_VERSION 7

#ifdef __cplusplus
}
#endif
