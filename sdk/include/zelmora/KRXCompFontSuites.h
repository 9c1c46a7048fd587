#pragma once
/* Text-engine composite fonts: fonts assembled from components per character class. */
#include "KRXTypes.h"
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

/* The host assembles no composite fonts, so their parts hold a name and nothing else. */
KRX_NAMED_SUITE(CompFont)
KRX_NAMED_SUITE(CompFontClass)
KRX_NAMED_SUITE(CompFontComponent)
KRX_NAMED_SET_SUITE(CompFontSet, KRXCompFontRef)
KRX_NAMED_SET_SUITE(CompFontClassSet, KRXCompFontClassRef)

#ifdef __cplusplus
}
#endif
