#pragma once
/* Text-engine fonts: the font programs the text engine composes with. */
#include "ZMTypes.h"

#ifdef __cplusplus
extern "C" {
#endif

#define ZM_KRX_FONT_SUITE_NAME    "KRX Font Suite"
#define ZM_KRX_FONT_SUITE_VERSION 1

#ifdef __cplusplus
}
#endif
