#pragma once
/* Handles and records that the document, art, path and paint suites share. Geometry is in
   points, page coordinates with y growing upwards. */
#include "ZMTypes.h"

#ifdef __cplusplus
extern "C" {
#endif

typedef int32_t ZMBool;

typedef struct ZMDocumentOpaque *ZMDocumentHandle;
typedef struct ZMArtOpaque *ZMArtHandle;
typedef struct ZMLayerOpaque *ZMLayerHandle;
typedef struct ZMLayerListOpaque *ZMLayerList;
typedef struct ZMCustomColorOpaque *ZMCustomColorHandle;
typedef struct ZMPatternOpaque *ZMPatternHandle;
typedef struct ZMGradientOpaque *ZMGradientHandle;
typedef struct ZMSymbolOpaque *ZMSymbolHandle;
typedef struct ZMBrushOpaque *ZMBrushHandle;
typedef struct ZMArtStyleOpaque *ZMArtStyleHandle;
typedef struct ZMDictionaryOpaque *ZMDictionaryRef;
typedef struct ZMDictKeyOpaque *ZMDictKey;
typedef struct ZMFilePathOpaque *ZMFilePath;
typedef struct ZMMdMemoryOpaque *ZMMdMemoryHandle;
typedef struct ZMArtboardListOpaque *ZMArtboardList;
typedef struct ZMMaskOpaque *ZMMaskHandle;

typedef struct ZMRealPoint {
    double x;
    double y;
} ZMRealPoint;

/* top is above bottom. */
typedef struct ZMRealRect {
    double left;
    double top;
    double right;
    double bottom;
} ZMRealRect;

/* One anchor point of a path with its direction points. */
typedef struct ZMPathSegment {
    ZMRealPoint anchor;
    ZMRealPoint in;
    ZMRealPoint out;
    ZMBool corner;
    int32_t reserved;
} ZMPathSegment;

/* Colour kinds. */
#define ZM_COLOR_GRAY     0
#define ZM_COLOR_FOUR     1 /* CMYK */
#define ZM_COLOR_PATTERN  2
#define ZM_COLOR_CUSTOM   3
#define ZM_COLOR_GRADIENT 4
#define ZM_COLOR_THREE    5 /* RGB */
#define ZM_COLOR_NONE     6

typedef struct ZMGrayColor {
    double gray; /* amount of black, 0..1 */
} ZMGrayColor;

typedef struct ZMFourColor {
    double cyan;
    double magenta;
    double yellow;
    double black;
} ZMFourColor;

typedef struct ZMThreeColor {
    double red;
    double green;
    double blue;
} ZMThreeColor;

typedef struct ZMCustomColorRef {
    ZMCustomColorHandle color;
    double tint; /* 0 the full colour, 1 white */
} ZMCustomColorRef;

typedef struct ZMColor {
    int16_t kind; /* ZM_COLOR_... */
    int16_t reserved[3];
    union {
        ZMGrayColor gray;
        ZMFourColor four;
        ZMThreeColor three;
        ZMPatternHandle pattern;
        ZMCustomColorRef custom;
        ZMGradientHandle gradient;
    } c;
} ZMColor;

typedef struct ZMFillStyle {
    ZMColor color;
    ZMBool overprint;
    int32_t reserved;
} ZMFillStyle;

typedef struct ZMStrokeStyle {
    ZMColor color;
    ZMBool overprint;
    int32_t reserved;
    double width; /* points */
} ZMStrokeStyle;

typedef struct ZMPathStyle {
    ZMBool fillPaint;
    ZMBool strokePaint;
    ZMFillStyle fill;
    ZMStrokeStyle stroke;
    ZMBool clip; /* a clipping path */
    ZMBool evenOdd;
} ZMPathStyle;

#ifdef __cplusplus
}
#endif
