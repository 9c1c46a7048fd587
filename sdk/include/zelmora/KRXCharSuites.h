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

/* A set of character features. A feature is either assigned a value or unassigned (it then
   takes its value from the character's style). */
typedef struct KRXCharFeaturesSuite {
    /* 0: a new set with every feature unassigned */
    ZMErr(ZM_API *Create)(KRXCharFeaturesRef *features);
    /* 1 */ ZMErr(ZM_API *AddRef)(KRXCharFeaturesRef features);
    /* 2 */ ZMErr(ZM_API *Release)(KRXCharFeaturesRef features);
    /* 3: a new set holding the features of the range's first character, every one assigned
       (the fill only when that character is filled); a range without characters gives a set
       with none assigned */
    ZMErr(ZM_API *CreateOfRange)(KRXTextRangeRef range, KRXCharFeaturesRef *features);
    /* 4: *assigned 1 and a new reference to the font, or *assigned 0 and *font null */
    ZMErr(ZM_API *GetFont)(KRXCharFeaturesRef features, KRXFontRef *font, int32_t *assigned);
    /* 5: size in points; *assigned 0 leaves *size alone */
    ZMErr(ZM_API *GetFontSize)(KRXCharFeaturesRef features, double *size, int32_t *assigned);
    /* 6: a size not above 0 (or not a number) is ZM_ERR_BAD_ARGUMENT */
    ZMErr(ZM_API *SetFontSize)(KRXCharFeaturesRef features, double size);
    /* 7: *assigned 1 and a new reference to the fill paint, or *assigned 0 and *paint null */
    ZMErr(ZM_API *GetFillColor)(KRXCharFeaturesRef features, KRXApplicationPaintRef *paint,
                                int32_t *assigned);
} KRXCharFeaturesSuite;

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

typedef struct KRXCharStyleSuite {
    /* 0 */ ZMErr(ZM_API *AddRef)(KRXCharStyleRef style);
    /* 1 */ ZMErr(ZM_API *Release)(KRXCharStyleRef style);
    /* 2: the name in UTF-8 with a closing NUL, cut after the last whole character that fits;
       bufferSize below 1 is ZM_ERR_BAD_ARGUMENT */
    ZMErr(ZM_API *GetName)(KRXCharStyleRef style, char *buffer, int32_t bufferSize);
    /* 3: a new set holding a copy of the style's features */
    ZMErr(ZM_API *GetFeatures)(KRXCharStyleRef style, KRXCharFeaturesRef *features);
} KRXCharStyleSuite;

#define ZM_KRX_CHAR_STYLES_SUITE_NAME    "KRX CharStyles Suite"
#define ZM_KRX_CHAR_STYLES_SUITE_VERSION 1

/* The character styles of the current document. The host's documents hold one: "Normal
   Character Style", in the host's default family, regular, 12 pt, filled black. */
typedef struct KRXCharStylesSuite {
    /* 0: ZM_ERR_NO_DOCUMENT when no document is open */
    ZMErr(ZM_API *GetDocumentCharStyles)(KRXCharStylesRef *styles);
    /* 1 */ ZMErr(ZM_API *AddRef)(KRXCharStylesRef styles);
    /* 2 */ ZMErr(ZM_API *Release)(KRXCharStylesRef styles);
    /* 3 */ ZMErr(ZM_API *GetSize)(KRXCharStylesRef styles, int32_t *size);
    /* 4: index outside 0..size-1 is ZM_ERR_BAD_ARGUMENT */
    ZMErr(ZM_API *Item)(KRXCharStylesRef styles, int32_t index, KRXCharStyleRef *style);
} KRXCharStylesSuite;

#define ZM_KRX_CHAR_STYLES_ITERATOR_SUITE_NAME    "KRX CharStylesIterator Suite"
#define ZM_KRX_CHAR_STYLES_ITERATOR_SUITE_VERSION 1

KRX_ITERATOR_SUITE(CharStylesIterator, KRXCharStylesRef, KRXCharStyleRef)

#ifdef __cplusplus
}
#endif
