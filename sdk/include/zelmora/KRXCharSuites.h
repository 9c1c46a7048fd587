#pragma once
/* Text-engine character features and styles, and the inspector of a range's features. */
#include "KRXArraySuites.h"
#include "KRXTypes.h"
#include "ZMTypes.h"

#ifdef __cplusplus
extern "C" {
#endif

#define ZM_KRX_CHAR_FEATURES_SUITE_NAME    "KRX CharFeatures Suite"
#define ZM_KRX_CHAR_FEATURES_SUITE_VERSION 101

#define ZM_KRX_CHAR_INSPECTOR_SUITE_NAME    "KRX CharInspector Suite"
#define ZM_KRX_CHAR_INSPECTOR_SUITE_VERSION 101

/* Each array holds every distinct value that some character of the range has, in the order
   of first use; a run that is not filled (or not stroked) adds nothing to the paints. Arrays
   are new references. */
typedef struct KRXCharInspectorSuite {
    /* 0 */ ZMErr(ZM_API *AddRef)(KRXCharInspectorRef inspector);
    /* 1 */ ZMErr(ZM_API *Release)(KRXCharInspectorRef inspector);
    /* 2 */ ZMErr(ZM_API *GetFont)(KRXCharInspectorRef inspector, KRXArrayFontRefRef *fonts);
    /* 3: sizes in points. */
    ZMErr(ZM_API *GetFontSize)(KRXCharInspectorRef inspector, KRXArrayRealRef *sizes);
    /* 4 */ ZMErr(ZM_API *GetFillColor)(KRXCharInspectorRef inspector,
                                        KRXArrayApplicationPaintRefRef *paints);
    /* 5 */ ZMErr(ZM_API *GetStrokeColor)(KRXCharInspectorRef inspector,
                                          KRXArrayApplicationPaintRefRef *paints);
} KRXCharInspectorSuite;

#define ZM_KRX_CHAR_STYLE_SUITE_NAME    "KRX CharStyle Suite"
#define ZM_KRX_CHAR_STYLE_SUITE_VERSION 1

#define ZM_KRX_CHAR_STYLES_SUITE_NAME    "KRX CharStyles Suite"
#define ZM_KRX_CHAR_STYLES_SUITE_VERSION 1

#define ZM_KRX_CHAR_STYLES_ITERATOR_SUITE_NAME    "KRX CharStylesIterator Suite"
#define ZM_KRX_CHAR_STYLES_ITERATOR_SUITE_VERSION 1

#ifdef __cplusplus
}
#endif
