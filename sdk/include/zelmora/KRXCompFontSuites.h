#pragma once
/* Text-engine composite fonts: fonts assembled from components per character class. */
#include "ZMTypes.h"

#ifdef __cplusplus
extern "C" {
#endif

#define ZM_KRX_COMP_FONT_SUITE_NAME    "KRX CompFont Suite"
#define ZM_KRX_COMP_FONT_SUITE_VERSION 1

#define ZM_KRX_COMP_FONT_CLASS_SUITE_NAME    "KRX CompFontClass Suite"
#define ZM_KRX_COMP_FONT_CLASS_SUITE_VERSION 1

#define ZM_KRX_COMP_FONT_CLASS_SET_SUITE_NAME    "KRX CompFontClassSet Suite"
#define ZM_KRX_COMP_FONT_CLASS_SET_SUITE_VERSION 1

#define ZM_KRX_COMP_FONT_COMPONENT_SUITE_NAME    "KRX CompFontComponent Suite"
#define ZM_KRX_COMP_FONT_COMPONENT_SUITE_VERSION 1

#define ZM_KRX_COMP_FONT_SET_SUITE_NAME    "KRX CompFontSet Suite"
#define ZM_KRX_COMP_FONT_SET_SUITE_VERSION 1

#ifdef __cplusplus
}
#endif
