#pragma once
/* Text-engine character features and styles, and the inspector of a range's features. */
#include "ZMTypes.h"

#ifdef __cplusplus
extern "C" {
#endif

#define ZM_KRX_CHAR_FEATURES_SUITE_NAME    "KRX CharFeatures Suite"
#define ZM_KRX_CHAR_FEATURES_SUITE_VERSION 101

#define ZM_KRX_CHAR_INSPECTOR_SUITE_NAME    "KRX CharInspector Suite"
#define ZM_KRX_CHAR_INSPECTOR_SUITE_VERSION 101

#define ZM_KRX_CHAR_STYLE_SUITE_NAME    "KRX CharStyle Suite"
#define ZM_KRX_CHAR_STYLE_SUITE_VERSION 1

#define ZM_KRX_CHAR_STYLES_SUITE_NAME    "KRX CharStyles Suite"
#define ZM_KRX_CHAR_STYLES_SUITE_VERSION 1

#define ZM_KRX_CHAR_STYLES_ITERATOR_SUITE_NAME    "KRX CharStylesIterator Suite"
#define ZM_KRX_CHAR_STYLES_ITERATOR_SUITE_VERSION 1

#ifdef __cplusplus
}
#endif
