#pragma once
/* Placed art: linked files and how they are placed. */
#include "ZMArtTypes.h"
#include "ZMRasterSuite.h"
#include "ZMTypes.h"

#ifdef __cplusplus
extern "C" {
#endif

#define ZM_PLACED_SUITE_NAME    "ZM Placed Suite"
#define ZM_PLACED_SUITE_VERSION 8

/* Placed types of a linked file. */
typedef int16_t ZMPlacedType;
#define ZM_PLACED_TYPE_EPS   0
#define ZM_PLACED_TYPE_OTHER 1

/* Every entry takes placed art (type 7): other art is ZM_ERR_WRONG_ART_TYPE, a null pointer or
   a handle naming no art ZM_ERR_BAD_ARGUMENT, and no open document ZM_ERR_NO_DOCUMENT. */
typedef struct ZMPlacedSuite {
    /* 0: the linked file, resolved against the document's folder, into a path the caller
       made with the file path suite; empty when the art names no file. */
    ZMErr(ZM_API *GetPlacedFilePath)(ZMArtHandle placed, ZMFilePath file);
    /* 1: ZM_PLACED_TYPE_EPS for a file named .eps, else ZM_PLACED_TYPE_OTHER. */
    ZMErr(ZM_API *GetPlacedType)(ZMArtHandle placed, ZMPlacedType *type);
    /* 2: isRaster is 1 and info describes the file when the file is an image whose header
       the host reads (PNG, JPEG, TIFF). Otherwise (a missing file, another format, or a
       damaged image, too large one included) isRaster is 0 and info is left as the caller
       set it; that is not an error. */
    ZMErr(ZM_API *GetPlacedRasterInfo)(ZMArtHandle placed, ZMRasterRecord *info,
                                       int32_t *isRaster);
} ZMPlacedSuite;

#ifdef __cplusplus
}
#endif
