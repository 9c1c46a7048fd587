#pragma once
/* Text-engine paragraphs, their features and styles, and the inspector of a range's features. */
#include "ZMTypes.h"

#ifdef __cplusplus
extern "C" {
#endif

#define ZM_KRX_PARA_FEATURES_SUITE_NAME    "KRX ParaFeatures Suite"
#define ZM_KRX_PARA_FEATURES_SUITE_VERSION 101

#define ZM_KRX_PARAGRAPH_SUITE_NAME    "KRX Paragraph Suite"
#define ZM_KRX_PARAGRAPH_SUITE_VERSION 1

#define ZM_KRX_PARAGRAPHS_ITERATOR_SUITE_NAME    "KRX ParagraphsIterator Suite"
#define ZM_KRX_PARAGRAPHS_ITERATOR_SUITE_VERSION 1

#define ZM_KRX_PARA_INSPECTOR_SUITE_NAME    "KRX ParaInspector Suite"
#define ZM_KRX_PARA_INSPECTOR_SUITE_VERSION 101

#define ZM_KRX_PARA_STYLE_SUITE_NAME    "KRX ParaStyle Suite"
#define ZM_KRX_PARA_STYLE_SUITE_VERSION 1

#define ZM_KRX_PARA_STYLES_SUITE_NAME    "KRX ParaStyles Suite"
#define ZM_KRX_PARA_STYLES_SUITE_VERSION 1

#define ZM_KRX_PARA_STYLES_ITERATOR_SUITE_NAME    "KRX ParaStylesIterator Suite"
#define ZM_KRX_PARA_STYLES_ITERATOR_SUITE_VERSION 1

#ifdef __cplusplus
}
#endif
