#pragma once
/* Application contexts: every plug-in entry that touches documents or its panel runs inside one. */
#include "ZMTypes.h"

#ifdef __cplusplus
extern "C" {
#endif

#define ZM_CONTEXT_SUITE_NAME    "ZM Context Suite"
#define ZM_CONTEXT_SUITE_VERSION 7

typedef struct ZMContextSuite {
    /* 0: how many contexts are open now. */
    ZMErr(ZM_API *GetContextDepth)(int32_t *depth);
    /* 1: opens a context for the plug-in; every open context must be closed with entry 2. */
    ZMErr(ZM_API *OpenContext)(ZMPluginRef plugin, ZMAppContext *context);
    /* 2: closes the innermost context; ZM_ERR_BAD_ARGUMENT if context is not the innermost. */
    ZMErr(ZM_API *CloseContext)(ZMAppContext context);
} ZMContextSuite;

#ifdef __cplusplus
}
#endif
