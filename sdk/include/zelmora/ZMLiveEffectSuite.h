#pragma once
/* Live effects: effects that change how art looks without changing the art. */
#include "ZMTypes.h"

#ifdef __cplusplus
extern "C" {
#endif

#define ZM_LIVE_EFFECT_SUITE_NAME    "ZM Live Effect Suite"
#define ZM_LIVE_EFFECT_SUITE_VERSION 6

/* One effect on a paint of an art style; valid while its document is open. */
typedef struct ZMLiveEffectOpaque *ZMLiveEffectHandle;

#ifdef __cplusplus
}
#endif
