#pragma once
/* Text-engine kinsoku: line-breaking rules for Japanese text. */
#include "ZMTypes.h"

#ifdef __cplusplus
extern "C" {
#endif

#define ZM_KRX_KINSOKU_SUITE_NAME    "KRX Kinsoku Suite"
#define ZM_KRX_KINSOKU_SUITE_VERSION 1

#define ZM_KRX_KINSOKU_SET_SUITE_NAME    "KRX KinsokuSet Suite"
#define ZM_KRX_KINSOKU_SET_SUITE_VERSION 1

#ifdef __cplusplus
}
#endif
