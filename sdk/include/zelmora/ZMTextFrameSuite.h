#pragma once
/* Text frames: point, area and on-path text art, and their text-engine objects. */
#include "KRXTypes.h"
#include "ZMArtTypes.h"
#include "ZMTypes.h"

#ifdef __cplusplus
extern "C" {
#endif

#define ZM_TEXT_FRAME_SUITE_NAME    "ZM Text Frame Suite"
#define ZM_TEXT_FRAME_SUITE_VERSION 4

/* Every entry takes text frame art (type 12): other art is ZM_ERR_WRONG_ART_TYPE, a null
   pointer or a handle naming no art ZM_ERR_BAD_ARGUMENT, and no open document
   ZM_ERR_NO_DOCUMENT. References are new ones, given back through their own suites. */
typedef struct ZMTextFrameSuite {
    /* 0: all the text of the frame, as one range. */
    ZMErr(ZM_API *GetKRXTextRange)(ZMArtHandle frame, KRXTextRangeRef *range);
    /* 1: the text engine's frame. */
    ZMErr(ZM_API *GetKRXTextFrame)(ZMArtHandle frame, KRXTextFrameRef *textFrame);
    /* 2: the path an area text flows in or a path text runs along (path art that belongs to
       the frame and lies outside the layers' trees); null for point text. */
    ZMErr(ZM_API *GetTextPathObject)(ZMArtHandle frame, ZMArtHandle *path);
} ZMTextFrameSuite;

#ifdef __cplusplus
}
#endif
