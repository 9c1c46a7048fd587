#pragma once
/* Text-engine paragraphs, their features and styles, and the inspector of a range's features. */
#include "KRXArraySuites.h"
#include "KRXTypes.h"
#include "ZMTypes.h"

#ifdef __cplusplus
extern "C" {
#endif

#define ZM_KRX_PARA_FEATURES_SUITE_NAME    "KRX ParaFeatures Suite"
#define ZM_KRX_PARA_FEATURES_SUITE_VERSION 101

/* How a paragraph's lines sit between its edges. */
#define KRX_PARAGRAPH_JUSTIFICATION_LEFT                 0
#define KRX_PARAGRAPH_JUSTIFICATION_RIGHT                1
#define KRX_PARAGRAPH_JUSTIFICATION_CENTER               2
#define KRX_PARAGRAPH_JUSTIFICATION_FULL_LAST_LINE_LEFT   3
#define KRX_PARAGRAPH_JUSTIFICATION_FULL_LAST_LINE_RIGHT  4
#define KRX_PARAGRAPH_JUSTIFICATION_FULL_LAST_LINE_CENTER 5
#define KRX_PARAGRAPH_JUSTIFICATION_FULL_LAST_LINE_FULL   6

/* A set of paragraph features. A feature is either assigned a value or unassigned (it then
   takes its value from the paragraph's style). */
typedef struct KRXParaFeaturesSuite {
    /* 0: a new set with every feature unassigned */
    ZMErr(ZM_API *Create)(KRXParaFeaturesRef *features);
    /* 1 */ ZMErr(ZM_API *AddRef)(KRXParaFeaturesRef features);
    /* 2 */ ZMErr(ZM_API *Release)(KRXParaFeaturesRef features);
    /* 3: *assigned 1 and the KRX_PARAGRAPH_JUSTIFICATION_... value, or *assigned 0 and
       *justification left alone */
    ZMErr(ZM_API *GetJustification)(KRXParaFeaturesRef features, KRXEnumValue *justification,
                                    int32_t *assigned);
    /* 4: a value outside the KRX_PARAGRAPH_JUSTIFICATION_... codes is ZM_ERR_BAD_ARGUMENT */
    ZMErr(ZM_API *SetJustification)(KRXParaFeaturesRef features, KRXEnumValue justification);
    /* 5: unassigns the justification */
    ZMErr(ZM_API *ClearJustification)(KRXParaFeaturesRef features);
} KRXParaFeaturesSuite;

#define ZM_KRX_PARAGRAPH_SUITE_NAME    "KRX Paragraph Suite"
#define ZM_KRX_PARAGRAPH_SUITE_VERSION 1

/* A paragraph: text up to and with a line break (LF, CR, CR LF or U+2029), or up to the end. */
typedef struct KRXParagraphSuite {
    /* 0 */ ZMErr(ZM_API *AddRef)(KRXParagraphRef paragraph);
    /* 1 */ ZMErr(ZM_API *Release)(KRXParagraphRef paragraph);
    /* 2: the paragraph's text, its closing break included (a new reference) */
    ZMErr(ZM_API *GetTextRange)(KRXParagraphRef paragraph, KRXTextRangeRef *range);
} KRXParagraphSuite;

#define ZM_KRX_PARAGRAPHS_ITERATOR_SUITE_NAME    "KRX ParagraphsIterator Suite"
#define ZM_KRX_PARAGRAPHS_ITERATOR_SUITE_VERSION 1

/* The paragraphs of a range; a range without characters has none. */
KRX_ITERATOR_SUITE(ParagraphsIterator, KRXTextRangeRef, KRXParagraphRef)

#define ZM_KRX_PARA_INSPECTOR_SUITE_NAME    "KRX ParaInspector Suite"
#define ZM_KRX_PARA_INSPECTOR_SUITE_VERSION 101

/* The paragraph features of a range's paragraphs: each array holds every distinct value that
   some paragraph has, in the order of first use (a range without characters has none).
   Paragraphs of this host are all set left. Arrays are new references. */
typedef struct KRXParaInspectorSuite {
    /* 0: an inspector of the range as it is now */
    ZMErr(ZM_API *Create)(KRXTextRangeRef range, KRXParaInspectorRef *inspector);
    /* 1 */ ZMErr(ZM_API *AddRef)(KRXParaInspectorRef inspector);
    /* 2 */ ZMErr(ZM_API *Release)(KRXParaInspectorRef inspector);
    /* 3: KRX_PARAGRAPH_JUSTIFICATION_... codes */
    ZMErr(ZM_API *GetJustification)(KRXParaInspectorRef inspector,
                                    KRXArrayParagraphJustificationRef *justifications);
} KRXParaInspectorSuite;

#define ZM_KRX_PARA_STYLE_SUITE_NAME    "KRX ParaStyle Suite"
#define ZM_KRX_PARA_STYLE_SUITE_VERSION 1

typedef struct KRXParaStyleSuite {
    /* 0 */ ZMErr(ZM_API *AddRef)(KRXParaStyleRef style);
    /* 1 */ ZMErr(ZM_API *Release)(KRXParaStyleRef style);
    /* 2: the name in UTF-8 with a closing NUL, cut after the last whole character that fits;
       bufferSize below 1 is ZM_ERR_BAD_ARGUMENT */
    ZMErr(ZM_API *GetName)(KRXParaStyleRef style, char *buffer, int32_t bufferSize);
    /* 3: a new set holding a copy of the style's features */
    ZMErr(ZM_API *GetFeatures)(KRXParaStyleRef style, KRXParaFeaturesRef *features);
} KRXParaStyleSuite;

#define ZM_KRX_PARA_STYLES_SUITE_NAME    "KRX ParaStyles Suite"
#define ZM_KRX_PARA_STYLES_SUITE_VERSION 1

/* The paragraph styles of the current document. The host's documents hold one: "Normal
   Paragraph Style", set left. */
typedef struct KRXParaStylesSuite {
    /* 0: ZM_ERR_NO_DOCUMENT when no document is open */
    ZMErr(ZM_API *GetDocumentParaStyles)(KRXParaStylesRef *styles);
    /* 1 */ ZMErr(ZM_API *AddRef)(KRXParaStylesRef styles);
    /* 2 */ ZMErr(ZM_API *Release)(KRXParaStylesRef styles);
    /* 3 */ ZMErr(ZM_API *GetSize)(KRXParaStylesRef styles, int32_t *size);
    /* 4: index outside 0..size-1 is ZM_ERR_BAD_ARGUMENT */
    ZMErr(ZM_API *Item)(KRXParaStylesRef styles, int32_t index, KRXParaStyleRef *style);
} KRXParaStylesSuite;

#define ZM_KRX_PARA_STYLES_ITERATOR_SUITE_NAME    "KRX ParaStylesIterator Suite"
#define ZM_KRX_PARA_STYLES_ITERATOR_SUITE_VERSION 1

KRX_ITERATOR_SUITE(ParaStylesIterator, KRXParaStylesRef, KRXParaStyleRef)

#ifdef __cplusplus
}
#endif
