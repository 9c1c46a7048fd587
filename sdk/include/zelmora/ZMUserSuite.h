#pragma once
/* User interaction: alerts. Alerts block until the user answers; a headless host records them. */
#include "ZMTypes.h"

#ifdef __cplusplus
extern "C" {
#endif

#define ZM_USER_SUITE_NAME    "ZM User Suite"
#define ZM_USER_SUITE_VERSION 12

/* Unit name formats for GetUnitsString. */
#define ZM_UNITS_FORMAT_NAME 2 /* the current ruler unit's name: "Points", "Millimeters" */

/* Positions 2-36 and 38-40 are kept for the progress and file dialog operations; they are
   null until those operations exist. */
typedef struct ZMUserSuite {
    /* 0: the current document's ruler unit as text, in the asked format, into a string the
       caller made. */
    ZMErr(ZM_API *GetUnitsString)(int16_t format, ZMUnicodeString units);
    /* 1: value (points) in the current ruler unit with its abbreviation ("215.9 mm"), into a
       string the caller made. precision -1 is the host's default: at most three decimals,
       trailing zeros dropped. */
    ZMErr(ZM_API *FormatValueInUnits)(double value, int16_t precision, ZMUnicodeString text);
    /* 2-36 */ void(ZM_API *reserved2[35])(void);
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
