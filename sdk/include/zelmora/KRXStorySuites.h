#pragma once
/* Text-engine stories: text that flows through linked frames. */
#include "ZMTypes.h"

#ifdef __cplusplus
extern "C" {
#endif

#define ZM_KRX_STORIES_SUITE_NAME    "KRX Stories Suite"
#define ZM_KRX_STORIES_SUITE_VERSION 1

#define ZM_KRX_STORY_SUITE_NAME    "KRX Story Suite"
#define ZM_KRX_STORY_SUITE_VERSION 1

#ifdef __cplusplus
}
#endif
