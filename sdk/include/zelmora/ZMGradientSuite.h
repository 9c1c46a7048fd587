#pragma once
/* Gradients: the document's gradient definitions and their stops. */
#include "ZMTypes.h"

#ifdef __cplusplus
extern "C" {
#endif

#define ZM_GRADIENT_SUITE_NAME    "ZM Gradient Suite"
#define ZM_GRADIENT_SUITE_VERSION 9

#ifdef __cplusplus
}
#endif
