#pragma once
/* Text-engine spell checking. */
#include "KRXTypes.h"
#include "ZMTypes.h"

#ifdef __cplusplus
extern "C" {
#endif

#define ZM_KRX_SPELL_SUITE_NAME    "KRX Spell Suite"
#define ZM_KRX_SPELL_SUITE_VERSION 101

/* The host has no dictionary: it knows no word to be misspelt. */
typedef struct KRXSpellSuite {
    /* 0: a new checker */
    ZMErr(ZM_API *Create)(KRXSpellRef *spell);
    /* 1 */ ZMErr(ZM_API *AddRef)(KRXSpellRef spell);
    /* 2 */ ZMErr(ZM_API *Release)(KRXSpellRef spell);
    /* 3: misspelt words in the range */
    ZMErr(ZM_API *CountMisspelledWords)(KRXSpellRef spell, KRXTextRangeRef range,
                                        int32_t *count);
} KRXSpellSuite;

#ifdef __cplusplus
}
#endif
