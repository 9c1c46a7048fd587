#pragma once
/* Text-engine stories: text that flows through linked frames. */
#include "KRXTypes.h"
#include "ZMTypes.h"

#ifdef __cplusplus
extern "C" {
#endif

#define ZM_KRX_STORIES_SUITE_NAME    "KRX Stories Suite"
#define ZM_KRX_STORIES_SUITE_VERSION 1

/* The stories of the current document: one per text frame, in document order (pre-order, layers
   from the first). A story is read from the frames as they were when the list was made. */
typedef struct KRXStoriesSuite {
    /* 0: ZM_ERR_NO_DOCUMENT when no document is open */
    ZMErr(ZM_API *GetDocumentStories)(KRXStoriesRef *stories);
    /* 1 */ ZMErr(ZM_API *AddRef)(KRXStoriesRef stories);
    /* 2 */ ZMErr(ZM_API *Release)(KRXStoriesRef stories);
    /* 3 */ ZMErr(ZM_API *GetSize)(KRXStoriesRef stories, int32_t *size);
    /* 4: index outside 0..size-1 is ZM_ERR_BAD_ARGUMENT */
    ZMErr(ZM_API *Item)(KRXStoriesRef stories, int32_t index, KRXStoryRef *story);
} KRXStoriesSuite;

#define ZM_KRX_STORY_SUITE_NAME    "KRX Story Suite"
#define ZM_KRX_STORY_SUITE_VERSION 1

/* Frames are never linked in this host, so a story flows through exactly one frame. */
typedef struct KRXStorySuite {
    /* 0 */ ZMErr(ZM_API *AddRef)(KRXStoryRef story);
    /* 1 */ ZMErr(ZM_API *Release)(KRXStoryRef story);
    /* 2: all the text of the story (a new reference) */
    ZMErr(ZM_API *GetTextRange)(KRXStoryRef story, KRXTextRangeRef *range);
    /* 3: frames the story flows through */
    ZMErr(ZM_API *CountFrames)(KRXStoryRef story, int32_t *count);
    /* 4: index outside 0..count-1 is ZM_ERR_BAD_ARGUMENT (a new reference) */
    ZMErr(ZM_API *GetFrame)(KRXStoryRef story, int32_t index, KRXTextFrameRef *frame);
} KRXStorySuite;

#ifdef __cplusplus
}
#endif
