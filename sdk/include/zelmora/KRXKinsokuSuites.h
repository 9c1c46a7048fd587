#pragma once
/* Text-engine kinsoku: line-breaking rules for Japanese text. */
#include "KRXTypes.h"
#include "ZMTypes.h"

#ifdef __cplusplus
extern "C" {
#endif

#define ZM_KRX_KINSOKU_SUITE_NAME    "KRX Kinsoku Suite"
#define ZM_KRX_KINSOKU_SUITE_VERSION 1

#define ZM_KRX_KINSOKU_SET_SUITE_NAME    "KRX KinsokuSet Suite"
#define ZM_KRX_KINSOKU_SET_SUITE_VERSION 1

/* The host composes no Japanese text, so its rules hold a name and nothing else. */
KRX_NAMED_SUITE(Kinsoku)
KRX_NAMED_SET_SUITE(KinsokuSet, KRXKinsokuRef)

#ifdef __cplusplus
}
#endif
