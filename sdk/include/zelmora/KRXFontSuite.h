#pragma once
/* Text-engine fonts: the font programs the text engine composes with. */
#include "KRXTypes.h"
#include "ZMTypes.h"

#ifdef __cplusplus
extern "C" {
#endif

#define ZM_KRX_FONT_SUITE_NAME    "KRX Font Suite"
#define ZM_KRX_FONT_SUITE_VERSION 1

typedef struct KRXFontSuite {
    /* 0 */ ZMErr(ZM_API *AddRef)(KRXFontRef font);
    /* 1 */ ZMErr(ZM_API *Release)(KRXFontRef font);
    /* 2: 1 when both name the same font of the catalogue, else 0. */
    ZMErr(ZM_API *IsEqual)(KRXFontRef font, KRXFontRef other, uint8_t *equal);
} KRXFontSuite;

#ifdef __cplusplus
}
#endif
