#pragma once
/* Raster art: embedded images, their pixels and colour spaces. */
#include "ZMArtTypes.h"
#include "ZMColorSpaceSuite.h"
#include "ZMTypes.h"

#ifdef __cplusplus
extern "C" {
#endif

#define ZM_RASTER_SUITE_NAME    "ZM Raster Suite"
#define ZM_RASTER_SUITE_VERSION 10

/* Raster colour space codes. An indexed image has the code of its palette's space. An image
   whose pixels carry an alpha channel has the code of its colours plus 16. */
typedef int16_t ZMRasterColorSpace;
#define ZM_RASTER_GRAY                    0
#define ZM_RASTER_RGB                     1
#define ZM_RASTER_CMYK                    2
#define ZM_RASTER_LAB                     3
#define ZM_RASTER_SEPARATION              4 /* one ink */
#define ZM_RASTER_DEVICE_N                5 /* several named inks */
#define ZM_RASTER_PROCESS_AND_SPOT        6 /* process inks with spot inks */
#define ZM_RASTER_ALPHA                   16 /* added to the above */
#define ZM_RASTER_UNKNOWN                 255

/* An image's pixel description. */
typedef struct ZMRasterRecord {
    /* In pixels, left and top 0: the width is right - left, the height bottom - top. */
    int32_t left;
    int32_t top;
    int32_t right;
    int32_t bottom;
    ZMRasterColorSpace colorSpace; /* ZM_RASTER_... */
    /* Every channel counted, alpha included: 1 for a black and white bitmap, 32 for RGB with
       alpha at 8 bits a channel, 48 for RGB at 16; an indexed image's bits per index. */
    int16_t bitsPerPixel;
} ZMRasterRecord;

/* Link states: where the pixels come from. */
#define ZM_RASTER_LINK_FILE     0 /* a file that the art links */
#define ZM_RASTER_LINK_EMBEDDED 1 /* data held in the document */

/* Source kinds. */
#define ZM_RASTER_SOURCE_FILE     0 /* a file on disk */
#define ZM_RASTER_SOURCE_DOCUMENT 2 /* the document itself (an embedded image) */

/* Where an image's pixels come from. An image is linked when linkState is
   ZM_RASTER_LINK_FILE and sourceKind is not ZM_RASTER_SOURCE_DOCUMENT. */
typedef struct ZMRasterLink {
    /* A path the caller made with the file path suite and still owns; the host sets it to the
       linked file, resolved against the document's folder, or empties it for an embedded
       image. */
    ZMFilePath file;
    int32_t linkState;  /* ZM_RASTER_LINK_... */
    int32_t sourceKind; /* ZM_RASTER_SOURCE_... */
} ZMRasterLink;

/* The image's data is damaged or truncated, is in no format the host reads, or has
   dimensions the host will not describe (a side over 1,000,000 pixels, over 100,000,000
   pixels in all, or over 160 bits per pixel). */
#define ZM_ERR_BAD_RASTER ZM_FOUR_CHAR('R', 'A', 'S', '?')

/* Every entry takes raster art (type 9): other art is ZM_ERR_WRONG_ART_TYPE, a null pointer or
   a handle naming no art ZM_ERR_BAD_ARGUMENT, and no open document ZM_ERR_NO_DOCUMENT. The
   host reads the image's header each time it is asked; it never decodes pixels. */
typedef struct ZMRasterSuite {
    /* 0: ZM_ERR_BAD_RASTER when the image cannot be described; the record is then left as
       it was. */
    ZMErr(ZM_API *GetRasterInfo)(ZMArtHandle raster, ZMRasterRecord *info);
    /* 1: the image's colour space, a space of the document (see the colour space suite): gray,
       RGB, Lab or CMYK, an indexed space over the palette's RGB; for named inks a separation
       of the one ink, or DeviceN with one separation member per ink, each ink's alternate
       CMYK. An alpha channel is not part of it. ZM_ERR_BAD_RASTER as 0. */
    ZMErr(ZM_API *GetRasterColorSpace)(ZMArtHandle raster, ZMColorSpaceHandle *space);
    /* 2: link->file must be a path the caller made; ZM_ERR_BAD_ARGUMENT otherwise. */
    ZMErr(ZM_API *GetRasterLink)(ZMArtHandle raster, ZMRasterLink *link);
    /* 3: 1 when a gray or black and white image is shown in a colour of its own instead of
       black. This host's documents have no way to give an image a colour, so the answer is
       0 for every image. */
    ZMErr(ZM_API *GetColorizedFlag)(ZMArtHandle raster, int32_t *colorized);
} ZMRasterSuite;

#ifdef __cplusplus
}
#endif
