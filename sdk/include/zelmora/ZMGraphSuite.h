#pragma once
/* Graphs: chart art. */
#include "ZMArtTypes.h"
#include "ZMTypes.h"

#ifdef __cplusplus
extern "C" {
#endif

#define ZM_GRAPH_SUITE_NAME    "ZM Graph Suite"
#define ZM_GRAPH_SUITE_VERSION 2

typedef struct ZMGraphSuite {
    /* 0: 1 when the art is a graph, else 0; the same answer as the art suite's IsArtGraph.
       ZM_ERR_BAD_ARGUMENT for a null pointer or a handle naming no art; ZM_ERR_NO_DOCUMENT
       when no document is open. */
    ZMErr(ZM_API *IsGraph)(ZMArtHandle art, ZMBool *isGraph);
} ZMGraphSuite;

#ifdef __cplusplus
}
#endif
