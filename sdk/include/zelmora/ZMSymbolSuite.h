#pragma once
/* Symbols: the document's symbol definitions and their instances. */
#include "ZMArtTypes.h"
#include "ZMTypes.h"

#ifdef __cplusplus
extern "C" {
#endif

#define ZM_SYMBOL_SUITE_NAME    "ZM Symbol Suite"
#define ZM_SYMBOL_SUITE_VERSION 7

/* Symbols of the current document, in the order the document defines them. A symbol handle
   stays valid until its document closes. ZM_ERR_NO_DOCUMENT when no document is open;
   ZM_ERR_BAD_ARGUMENT for a null pointer or a handle naming no symbol (or art) of it. */
typedef struct ZMSymbolSuite {
    /* 0 */
    ZMErr(ZM_API *CountSymbols)(int32_t *count);
    /* 1: ZM_ERR_BAD_ARGUMENT for an index outside 0..count-1. */
    ZMErr(ZM_API *GetNthSymbol)(int32_t index, ZMSymbolHandle *symbol);
    /* 2: the symbol's name as a new string that the caller disposes of. */
    ZMErr(ZM_API *GetSymbolName)(ZMSymbolHandle symbol, ZMUnicodeString *name);
    /* 3: the art that defines the symbol, outside the layers; null when it has none. */
    ZMErr(ZM_API *GetSymbolDefinitionArt)(ZMSymbolHandle symbol, ZMArtHandle *art);
    /* 4: the symbol a symbol instance shows (ZM_ERR_WRONG_ART_TYPE for other art); null when
       the instance names no symbol. */
    ZMErr(ZM_API *GetSymbolOfInstance)(ZMArtHandle instance, ZMSymbolHandle *symbol);
} ZMSymbolSuite;

#ifdef __cplusplus
}
#endif
