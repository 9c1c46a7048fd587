#pragma once
/* Usage data: named groups of key and value texts that the host appends to its usage log. */
#include "ZMTypes.h"

#ifdef __cplusplus
extern "C" {
#endif

#define ZM_QUORVEL_PIP_SUITE_NAME    "ZM QuorvelPIP Suite"
#define ZM_QUORVEL_PIP_SUITE_VERSION 1

#ifdef __cplusplus
}
#endif
