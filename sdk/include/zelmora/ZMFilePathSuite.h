#pragma once
/* File paths: file locations independent of the platform's spelling. */
#include "ZMTypes.h"

#ifdef __cplusplus
extern "C" {
#endif

#define ZM_FILE_PATH_SUITE_NAME    "ZM File Path Suite"
#define ZM_FILE_PATH_SUITE_VERSION 5

#ifdef __cplusplus
}
#endif
