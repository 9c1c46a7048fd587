#pragma once
/* Arithmetic on reals, points and matrices, including comparisons within a tolerance. */
#include "ZMTypes.h"

#ifdef __cplusplus
extern "C" {
#endif

#define ZM_REAL_MATH_SUITE_NAME    "ZM Real Math Suite"
#define ZM_REAL_MATH_SUITE_VERSION 3

#ifdef __cplusplus
}
#endif
