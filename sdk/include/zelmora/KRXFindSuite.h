#pragma once
/* Text-engine search and replace over stories. */
#include "ZMTypes.h"

#ifdef __cplusplus
extern "C" {
#endif

#define ZM_KRX_FIND_SUITE_NAME    "KRX Find Suite"
#define ZM_KRX_FIND_SUITE_VERSION 101

#ifdef __cplusplus
}
#endif
