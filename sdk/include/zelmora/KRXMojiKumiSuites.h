#pragma once
/* Text-engine mojikumi: character spacing rules for Japanese text. */
#include "KRXTypes.h"
#include "ZMTypes.h"

#ifdef __cplusplus
extern "C" {
#endif

#define ZM_KRX_MOJI_KUMI_SUITE_NAME    "KRX MojiKumi Suite"
#define ZM_KRX_MOJI_KUMI_SUITE_VERSION 1

#define ZM_KRX_MOJI_KUMI_SET_SUITE_NAME    "KRX MojiKumiSet Suite"
#define ZM_KRX_MOJI_KUMI_SET_SUITE_VERSION 1

/* The host composes no Japanese text, so its rules hold a name and nothing else. */
KRX_NAMED_SUITE(MojiKumi)
KRX_NAMED_SET_SUITE(MojiKumiSet, KRXMojiKumiRef)

#ifdef __cplusplus
}
#endif
