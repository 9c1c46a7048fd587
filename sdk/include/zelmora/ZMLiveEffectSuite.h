#pragma once
/* Live effects: effects that change how art looks without changing the art. */
#include "ZMTypes.h"

#ifdef __cplusplus
extern "C" {
#endif

#define ZM_LIVE_EFFECT_SUITE_NAME    "ZM Live Effect Suite"
#define ZM_LIVE_EFFECT_SUITE_VERSION 6

#ifdef __cplusplus
}
#endif
