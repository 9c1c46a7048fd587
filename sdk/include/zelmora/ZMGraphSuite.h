#pragma once
/* Graphs: chart art. */
#include "ZMTypes.h"

#ifdef __cplusplus
extern "C" {
#endif

#define ZM_GRAPH_SUITE_NAME    "ZM Graph Suite"
#define ZM_GRAPH_SUITE_VERSION 2

#ifdef __cplusplus
}
#endif
