#pragma once
/* Paths: the segments of path art. */
#include "ZMArtSuite.h"
#include "ZMArtTypes.h"
#include "ZMTypes.h"

#ifdef __cplusplus
extern "C" {
#endif

#define ZM_PATH_SUITE_NAME    "ZM Path Suite"
#define ZM_PATH_SUITE_VERSION 11

/* A path has more segments than a 16-bit count holds (32767). */
#define ZM_ERR_TOO_MANY_SEGMENTS ZM_FOUR_CHAR('S', 'E', 'G', '#')

/* Entries take path art (ZM_ART_PATH): other art is ZM_ERR_WRONG_ART_TYPE. A null art handle
   or out-pointer, or a handle naming no art, is ZM_ERR_BAD_ARGUMENT; no open document is
   ZM_ERR_NO_DOCUMENT. A segment is one anchor point with its direction points. */
typedef struct ZMPathSuite {
    /* 0: the number of segments (anchor points); ZM_ERR_TOO_MANY_SEGMENTS above 32767. */
    ZMErr(ZM_API *GetPathSegmentCount)(ZMArtHandle path, int16_t *count);
    /* 1: copies count segments from index first into segments (room for count records).
       ZM_ERR_BAD_ARGUMENT when first or count is negative or the range passes the end. */
    ZMErr(ZM_API *GetPathSegments)(ZMArtHandle path, int16_t first, int16_t count,
                                   ZMPathSegment *segments);
    /* 2: 1 when the path is closed, else 0. */
    ZMErr(ZM_API *GetPathClosed)(ZMArtHandle path, ZMBool *closed);
    /* 3: the length in points of the path flattened so that no point of a curve lies farther
       than flatness points from the straight pieces; a closed path counts its closing
       segment. Straight segments measure exactly; a finer flatness comes closer to the
       curves' true length. ZM_ERR_BAD_ARGUMENT unless flatness is positive. */
    ZMErr(ZM_API *GetPathLength)(ZMArtHandle path, double *length, double flatness);
} ZMPathSuite;

#ifdef __cplusplus
}
#endif
