#pragma once
/* Text-engine frames, and the lines composed in them. */
#include "KRXTypes.h"
#include "ZMTypes.h"

#ifdef __cplusplus
extern "C" {
#endif

#define ZM_KRX_TEXT_FRAME_SUITE_NAME    "KRX TextFrame Suite"
#define ZM_KRX_TEXT_FRAME_SUITE_VERSION 101

typedef struct KRXTextFrameSuite {
    /* 0 */ ZMErr(ZM_API *AddRef)(KRXTextFrameRef frame);
    /* 1 */ ZMErr(ZM_API *Release)(KRXTextFrameRef frame);
    /* 2: KRX_FRAME_TYPE_... */
    ZMErr(ZM_API *GetType)(KRXTextFrameRef frame, KRXFrameType *type);
    /* 3: all the text of the frame (a new reference). */
    ZMErr(ZM_API *GetTextRange)(KRXTextFrameRef frame, KRXTextRangeRef *range);
} KRXTextFrameSuite;

#define ZM_KRX_TEXT_FRAMES_ITERATOR_SUITE_NAME    "KRX TextFramesIterator Suite"
#define ZM_KRX_TEXT_FRAMES_ITERATOR_SUITE_VERSION 1

/* The frames a story flows through, first to last. */
KRX_ITERATOR_SUITE(TextFramesIterator, KRXStoryRef, KRXTextFrameRef)

#define ZM_KRX_TEXT_LINE_SUITE_NAME    "KRX TextLine Suite"
#define ZM_KRX_TEXT_LINE_SUITE_VERSION 2

/* A composed line. The host does not wrap text, in a frame of any kind, so each paragraph of
   a frame is one line. */
typedef struct KRXTextLineSuite {
    /* 0 */ ZMErr(ZM_API *AddRef)(KRXTextLineRef line);
    /* 1 */ ZMErr(ZM_API *Release)(KRXTextLineRef line);
    /* 2: the line's text (a new reference) */
    ZMErr(ZM_API *GetTextRange)(KRXTextLineRef line, KRXTextRangeRef *range);
} KRXTextLineSuite;

#define ZM_KRX_TEXT_LINES_ITERATOR_SUITE_NAME    "KRX TextLinesIterator Suite"
#define ZM_KRX_TEXT_LINES_ITERATOR_SUITE_VERSION 1

/* The lines of a frame, first to last; a frame without characters has none. */
KRX_ITERATOR_SUITE(TextLinesIterator, KRXTextFrameRef, KRXTextLineRef)

#ifdef __cplusplus
}
#endif
