#pragma once
/* Documents: setup, colour model, profiles and file of the current document. */
#include "ZMTypes.h"

#ifdef __cplusplus
extern "C" {
#endif

#define ZM_DOCUMENT_SUITE_NAME    "ZM Document Suite"
#define ZM_DOCUMENT_SUITE_VERSION 16

#ifdef __cplusplus
}
#endif
