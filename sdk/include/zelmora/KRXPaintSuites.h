#pragma once
/* Text-engine paint: the host's paint as the text engine sees it. */
#include "KRXTypes.h"
#include "ZMArtTypes.h"
#include "ZMTypes.h"

#ifdef __cplusplus
extern "C" {
#endif

#define ZM_ZMKRX_PAINT_SUITE_NAME    "ZMKRX Paint Suite"
#define ZM_ZMKRX_PAINT_SUITE_VERSION 3

/* Conversions between the host's fill styles and the text engine's paints. */
typedef struct ZMKRXPaintSuite {
    /* 0: the host fill style of a paint (overprint 0 unless the paint says otherwise). */
    ZMErr(ZM_API *GetZMFillStyle)(KRXApplicationPaintRef paint, ZMFillStyle *style);
    /* 1: a new paint (a new reference) of a host fill style; a colour of kind
       ZM_COLOR_NONE or outside the kinds is ZM_ERR_BAD_ARGUMENT. */
    ZMErr(ZM_API *CreateKRXPaint)(const ZMFillStyle *style, KRXApplicationPaintRef *paint);
} ZMKRXPaintSuite;

#define ZM_KRX_APPLICATION_PAINT_SUITE_NAME    "KRX ApplicationPaint Suite"
#define ZM_KRX_APPLICATION_PAINT_SUITE_VERSION 1

typedef struct KRXApplicationPaintSuite {
    /* 0 */ ZMErr(ZM_API *AddRef)(KRXApplicationPaintRef paint);
    /* 1 */ ZMErr(ZM_API *Release)(KRXApplicationPaintRef paint);
} KRXApplicationPaintSuite;

#ifdef __cplusplus
}
#endif
