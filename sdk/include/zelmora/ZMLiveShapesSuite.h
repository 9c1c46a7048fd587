#pragma once
/* Live shapes: shapes that keep their parameters, and the corners of their paths. */
#include "ZMArtTypes.h"
#include "ZMTypes.h"

#ifdef __cplusplus
extern "C" {
#endif

#define ZM_LIVE_SHAPES_SUITE_NAME    "ZM Live Shapes Suite"
#define ZM_LIVE_SHAPES_SUITE_VERSION 1

#define ZM_LIVE_CORNERS_SUITE_NAME    "ZM Live Corners Suite"
#define ZM_LIVE_CORNERS_SUITE_VERSION 1

/* Kinds of live shape. */
typedef int32_t ZMLiveShapeKind;
#define ZM_LIVE_SHAPE_RECTANGLE 0
#define ZM_LIVE_SHAPE_ELLIPSE   1 /* no corners */
#define ZM_LIVE_SHAPE_POLYGON   2

/* Corner types. */
#define ZM_CORNER_ROUND          0
#define ZM_CORNER_INVERTED_ROUND 1
#define ZM_CORNER_CHAMFER        2

/* Rounding types. */
#define ZM_ROUNDING_ABSOLUTE 0
#define ZM_ROUNDING_RELATIVE 1

/* Art handles as in the art suite: ZM_ERR_BAD_ARGUMENT for a null pointer or a handle naming
   no art, ZM_ERR_NO_DOCUMENT when no document is open. This suite is optional. */
typedef struct ZMLiveShapesSuite {
    /* 0: 1 when the art is a live shape, else 0. */
    ZMErr(ZM_API *IsLiveShape)(ZMArtHandle art, ZMBool *isLiveShape);
    /* 1: the kind of live shape; ZM_ERR_NOT_FOUND for art that is not one. */
    ZMErr(ZM_API *GetLiveShapeKind)(ZMArtHandle art, ZMLiveShapeKind *kind);
} ZMLiveShapesSuite;

/* A corners object: the corners of one path, loaded from its segments. */
typedef struct ZMLiveCornersOpaque *ZMLiveCornersHandle;

/* LoadFromSegments flags. */
/* Each corner anchor (ZMPathSegment.corner) is a corner of radius 0, type and rounding 0. */
#define ZM_LIVE_CORNERS_FROM_ANCHORS 0
/* The corners of the current document's live shape whose path has exactly these segments;
   when no live shape has them, as ZM_LIVE_CORNERS_FROM_ANCHORS. */
#define ZM_LIVE_CORNERS_FROM_LIVE_SHAPE 1

/* ZM_ERR_BAD_ARGUMENT for a null pointer, a corners handle the host did not make (or that is
   disposed of) or a corner index outside 0..count-1. */
typedef struct ZMLiveCornersSuite {
    /* 0: a new corners object without corners; the caller disposes of it. */
    ZMErr(ZM_API *NewCorners)(ZMLiveCornersHandle *corners);
    /* 1: replaces the object's corners by those of count segments (flags ZM_LIVE_CORNERS_...;
       another value is ZM_ERR_BAD_ARGUMENT). ZM_LIVE_CORNERS_FROM_LIVE_SHAPE needs an open
       document (ZM_ERR_NO_DOCUMENT). */
    ZMErr(ZM_API *LoadFromSegments)(ZMLiveCornersHandle corners, const ZMPathSegment *segments,
                                    int32_t count, int32_t flags);
    /* 2 */
    ZMErr(ZM_API *CountCorners)(ZMLiveCornersHandle corners, int32_t *count);
    /* 3: ZM_CORNER_... */
    ZMErr(ZM_API *GetCornerType)(ZMLiveCornersHandle corners, int32_t index, int32_t *type);
    /* 4: ZM_ROUNDING_... */
    ZMErr(ZM_API *GetCornerRoundingType)(ZMLiveCornersHandle corners, int32_t index,
                                         int32_t *roundingType);
    /* 5: in points. */
    ZMErr(ZM_API *GetCornerRadius)(ZMLiveCornersHandle corners, int32_t index, double *radius);
    /* 6: gives the object back. */
    ZMErr(ZM_API *DisposeCorners)(ZMLiveCornersHandle corners);
} ZMLiveCornersSuite;

#ifdef __cplusplus
}
#endif
