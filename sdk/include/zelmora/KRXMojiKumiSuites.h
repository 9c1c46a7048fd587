#pragma once
/* Text-engine mojikumi: character spacing rules for Japanese text. */
#include "ZMTypes.h"

#ifdef __cplusplus
extern "C" {
#endif

#define ZM_KRX_MOJI_KUMI_SUITE_NAME    "KRX MojiKumi Suite"
#define ZM_KRX_MOJI_KUMI_SUITE_VERSION 1

#define ZM_KRX_MOJI_KUMI_SET_SUITE_NAME    "KRX MojiKumiSet Suite"
#define ZM_KRX_MOJI_KUMI_SET_SUITE_VERSION 1

#ifdef __cplusplus
}
#endif
