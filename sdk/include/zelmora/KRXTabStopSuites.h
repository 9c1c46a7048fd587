#pragma once
/* Text-engine tab stops of paragraphs. */
#include "KRXTypes.h"
#include "ZMTypes.h"

#ifdef __cplusplus
extern "C" {
#endif

#define ZM_KRX_TAB_STOP_SUITE_NAME    "KRX TabStop Suite"
#define ZM_KRX_TAB_STOP_SUITE_VERSION 1

typedef struct KRXTabStopSuite {
    /* 0: a new tab stop at 0 */
    ZMErr(ZM_API *Create)(KRXTabStopRef *tabStop);
    /* 1 */ ZMErr(ZM_API *AddRef)(KRXTabStopRef tabStop);
    /* 2 */ ZMErr(ZM_API *Release)(KRXTabStopRef tabStop);
    /* 3: points from the paragraph's start edge */
    ZMErr(ZM_API *GetPosition)(KRXTabStopRef tabStop, double *position);
    /* 4: a position below 0 (or not a number) is ZM_ERR_BAD_ARGUMENT */
    ZMErr(ZM_API *SetPosition)(KRXTabStopRef tabStop, double position);
} KRXTabStopSuite;

#define ZM_KRX_TAB_STOPS_SUITE_NAME    "KRX TabStops Suite"
#define ZM_KRX_TAB_STOPS_SUITE_VERSION 1

/* A list of tab stops. The list holds copies: Append copies the tab stop as it is, Item hands
   out a new tab stop at the copy's position. */
typedef struct KRXTabStopsSuite {
    /* 0: a new, empty list */
    ZMErr(ZM_API *Create)(KRXTabStopsRef *tabStops);
    /* 1 */ ZMErr(ZM_API *AddRef)(KRXTabStopsRef tabStops);
    /* 2 */ ZMErr(ZM_API *Release)(KRXTabStopsRef tabStops);
    /* 3 */ ZMErr(ZM_API *GetSize)(KRXTabStopsRef tabStops, int32_t *size);
    /* 4: index outside 0..size-1 is ZM_ERR_BAD_ARGUMENT */
    ZMErr(ZM_API *Item)(KRXTabStopsRef tabStops, int32_t index, KRXTabStopRef *tabStop);
    /* 5: adds a copy at the end */
    ZMErr(ZM_API *Append)(KRXTabStopsRef tabStops, KRXTabStopRef tabStop);
} KRXTabStopsSuite;

#define ZM_KRX_TAB_STOPS_ITERATOR_SUITE_NAME    "KRX TabStopsIterator Suite"
#define ZM_KRX_TAB_STOPS_ITERATOR_SUITE_VERSION 1

KRX_ITERATOR_SUITE(TabStopsIterator, KRXTabStopsRef, KRXTabStopRef)

#ifdef __cplusplus
}
#endif
