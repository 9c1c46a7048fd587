#pragma once
/* User interaction: alerts. Alerts block until the user answers; a headless host records them. */
#include "ZMTypes.h"

#ifdef __cplusplus
extern "C" {
#endif

#define ZM_USER_SUITE_NAME    "ZM User Suite"
#define ZM_USER_SUITE_VERSION 12

/* Positions 0-36 and 38-40 are kept for the units, progress and file dialog operations;
   they are null until those operations exist. */
typedef struct ZMUserSuite {
    /* 0-36 */ void(ZM_API *reserved0[37])(void);
    /* 37: a warning alert. dontAskKey names a preference that lets the user silence it;
       null always shows it. */
    ZMErr(ZM_API *WarningAlert)(ZMUnicodeString text, const char *dontAskKey);
    /* 38-40 */ void(ZM_API *reserved38[3])(void);
    /* 41 */ ZMErr(ZM_API *ErrorAlert)(ZMUnicodeString text);
    /* 42 */ ZMErr(ZM_API *MessageAlert)(ZMUnicodeString text);
} ZMUserSuite;

#ifdef __cplusplus
}
#endif
