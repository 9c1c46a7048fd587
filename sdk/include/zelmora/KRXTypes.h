#pragma once
/* References to the text engine's objects. Every object the engine hands out carries a count
   of references: a reference returned by an entry is the caller's, given back with the
   Release entry of the object's own suite; AddRef makes one more. A reference the host never
   handed out, or one whose last reference is gone, is ZM_ERR_BAD_ARGUMENT. */
#include "ZMTypes.h"

#ifdef __cplusplus
extern "C" {
#endif

typedef struct KRXTextFrameOpaque *KRXTextFrameRef;
typedef struct KRXTextRangeOpaque *KRXTextRangeRef;
typedef struct KRXCharInspectorOpaque *KRXCharInspectorRef;
typedef struct KRXFontOpaque *KRXFontRef;
typedef struct KRXApplicationPaintOpaque *KRXApplicationPaintRef;
typedef struct KRXKinsokuOpaque *KRXKinsokuRef;
typedef struct KRXMojiKumiOpaque *KRXMojiKumiRef;
typedef struct KRXMojiKumiSetOpaque *KRXMojiKumiSetRef;
typedef struct KRXTabStopsOpaque *KRXTabStopsRef;

typedef uint16_t KRXGlyphID;

/* An affine transform: x' = a x + c y + tx, y' = b x + d y + ty. */
typedef struct KRXRealMatrix {
    double a;
    double b;
    double c;
    double d;
    double tx;
    double ty;
} KRXRealMatrix;

/* Kinds of text frame. */
typedef int32_t KRXFrameType;
#define KRX_FRAME_TYPE_POINT   0 /* point text: a line that starts at a point */
#define KRX_FRAME_TYPE_IN_PATH 1 /* area text: text that flows inside a shape */
#define KRX_FRAME_TYPE_ON_PATH 2 /* text that runs along a path */

#ifdef __cplusplus
}
#endif
