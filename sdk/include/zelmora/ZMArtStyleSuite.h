#pragma once
/* Graphic styles on art, and the parser that splits a style into its fills, strokes and effects. */
#include "ZMTypes.h"

#ifdef __cplusplus
extern "C" {
#endif

#define ZM_ART_STYLE_SUITE_NAME    "ZM Art Style Suite"
#define ZM_ART_STYLE_SUITE_VERSION 7

#define ZM_ART_STYLE_PARSER_SUITE_NAME    "ZM Art Style Parser Suite"
#define ZM_ART_STYLE_PARSER_SUITE_VERSION 8

#ifdef __cplusplus
}
#endif
