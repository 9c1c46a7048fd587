#pragma once
/* Gradient meshes. */
#include "ZMArtTypes.h"
#include "ZMTypes.h"

#ifdef __cplusplus
extern "C" {
#endif

#define ZM_MESH_SUITE_NAME    "ZM Mesh Suite"
#define ZM_MESH_SUITE_VERSION 6

/* Called once per colour of a mesh with the caller's data; a non-zero result stops the
   enumeration. The colour record lives for the call only. */
typedef ZMErr(ZM_API *ZMMeshColorProc)(void *data, const ZMColor *color);

/* Entries take mesh art (ZM_ART_MESH): other art is ZM_ERR_WRONG_ART_TYPE. A null pointer or
   a handle naming no art is ZM_ERR_BAD_ARGUMENT; no open document ZM_ERR_NO_DOCUMENT. */
typedef struct ZMMeshSuite {
    /* 0: the number of colours of the mesh's points. */
    ZMErr(ZM_API *CountMeshColors)(ZMArtHandle mesh, int32_t *count);
    /* 1: calls proc for each colour of the mesh in order. The first non-zero result of proc
       ends the enumeration and is this entry's result. */
    ZMErr(ZM_API *ForEachMeshColor)(ZMArtHandle mesh, ZMMeshColorProc proc, void *data);
} ZMMeshSuite;

#ifdef __cplusplus
}
#endif
