#pragma once
/* Arithmetic on reals, points and matrices, including comparisons within a tolerance. */
#include "ZMArtTypes.h"
#include "ZMTypes.h"

#ifdef __cplusplus
extern "C" {
#endif

#define ZM_REAL_MATH_SUITE_NAME    "ZM Real Math Suite"
#define ZM_REAL_MATH_SUITE_VERSION 3

/* Every entry answers ZM_ERR_BAD_ARGUMENT for a null out-pointer or an argument that is not a
   number (NaN). */
typedef struct ZMRealMathSuite {
    /* 0: 1 when |a - b| is no greater than tolerance, else 0. A negative tolerance is
       ZM_ERR_BAD_ARGUMENT. */
    ZMErr(ZM_API *EqualWithinTol)(double a, double b, double tolerance, ZMBool *equal);
    /* 1 */
    ZMErr(ZM_API *AbsReal)(double a, double *result);
    /* 2: the smaller of a and b. */
    ZMErr(ZM_API *MinReal)(double a, double b, double *result);
    /* 3: the larger of a and b. */
    ZMErr(ZM_API *MaxReal)(double a, double b, double *result);
    /* 4: a held within low..high; ZM_ERR_BAD_ARGUMENT when low is above high. */
    ZMErr(ZM_API *ClampReal)(double a, double low, double high, double *result);
    /* 5: the distance between two points. */
    ZMErr(ZM_API *PointDistance)(const ZMRealPoint *a, const ZMRealPoint *b, double *distance);
} ZMRealMathSuite;

#ifdef __cplusplus
}
#endif
