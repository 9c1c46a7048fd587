#pragma once
/* Text-engine spell checking. */
#include "ZMTypes.h"

#ifdef __cplusplus
extern "C" {
#endif

#define ZM_KRX_SPELL_SUITE_NAME    "KRX Spell Suite"
#define ZM_KRX_SPELL_SUITE_VERSION 101

#ifdef __cplusplus
}
#endif
