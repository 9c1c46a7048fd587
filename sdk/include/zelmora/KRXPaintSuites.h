#pragma once
/* Text-engine paint: the host's paint as the text engine sees it. */
#include "ZMTypes.h"

#ifdef __cplusplus
extern "C" {
#endif

#define ZM_ZMKRX_PAINT_SUITE_NAME    "ZMKRX Paint Suite"
#define ZM_ZMKRX_PAINT_SUITE_VERSION 3

#define ZM_KRX_APPLICATION_PAINT_SUITE_NAME    "KRX ApplicationPaint Suite"
#define ZM_KRX_APPLICATION_PAINT_SUITE_VERSION 1

#ifdef __cplusplus
}
#endif
