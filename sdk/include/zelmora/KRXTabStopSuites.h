#pragma once
/* Text-engine tab stops of paragraphs. */
#include "ZMTypes.h"

#ifdef __cplusplus
extern "C" {
#endif

#define ZM_KRX_TAB_STOP_SUITE_NAME    "KRX TabStop Suite"
#define ZM_KRX_TAB_STOP_SUITE_VERSION 1

#define ZM_KRX_TAB_STOPS_SUITE_NAME    "KRX TabStops Suite"
#define ZM_KRX_TAB_STOPS_SUITE_VERSION 1

#define ZM_KRX_TAB_STOPS_ITERATOR_SUITE_NAME    "KRX TabStopsIterator Suite"
#define ZM_KRX_TAB_STOPS_ITERATOR_SUITE_VERSION 1

#ifdef __cplusplus
}
#endif
