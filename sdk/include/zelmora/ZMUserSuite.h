#pragma once
/* User interaction: measurement units, progress, file dialogs, alerts, and what the user's
   application and locale are. Alerts and dialogs block until the user answers; a headless
   host records alerts and answers dialogs from its settings. */
#include "ZMArtTypes.h"

#ifdef __cplusplus
extern "C" {
#endif

#define ZM_USER_SUITE_NAME    "ZM User Suite"
#define ZM_USER_SUITE_VERSION 12

/* Ruler units, by the document suite's codes. */
typedef int16_t ZMUnits;
#define ZM_UNITS_POINTS      0
#define ZM_UNITS_PIXELS      1 /* CSS pixels: 0.75 pt */
#define ZM_UNITS_INCHES      2
#define ZM_UNITS_MILLIMETERS 3
#define ZM_UNITS_CENTIMETERS 4
#define ZM_UNITS_PICAS       5 /* 12 pt */

/* Forms of a unit's name. */
typedef int16_t ZMUnitsFormat;
#define ZM_UNITS_FORMAT_ABBREVIATION 0 /* "pt", "mm"; the same in every locale */
#define ZM_UNITS_FORMAT_SINGULAR     1 /* "Point", "Millimeter"; localized */
#define ZM_UNITS_FORMAT_PLURAL       2 /* "Points", "Millimeters"; localized */

/* Precision that asks for the host's measurement form: at most three decimals, trailing
   zeros dropped ("612 pt", "215.9 mm"). */
#define ZM_UNITS_DEFAULT_PRECISION (-1)

/* A local date and time. */
typedef struct ZMDateTime {
    int16_t year;
    int16_t month;   /* 1-12 */
    int16_t day;     /* 1-31 */
    int16_t hour;    /* 0-23 */
    int16_t minute;  /* 0-59 */
    int16_t second;  /* 0-60 */
    int16_t weekday; /* 0 Sunday - 6 Saturday */
} ZMDateTime;

/* Entries that fill a string or a path write into one the caller made (strings from the
   Unicode string suite, paths from the file path suite). Entries about "the current units"
   read the current document's ruler units and need a document (ZM_ERR_NO_DOCUMENT). A unit
   or format code out of range is ZM_ERR_BAD_ARGUMENT. Lengths are in points. */
typedef struct ZMUserSuite {
    /* 0: the name of the current units in the given form. */
    ZMErr(ZM_API *GetUnitsString)(ZMUnitsFormat format, ZMUnicodeString name);
    /* 1: the name of any units in the given form; no document needed. */
    ZMErr(ZM_API *GetUnitsStringFor)(ZMUnits units, ZMUnitsFormat format, ZMUnicodeString name);
    /* 2 */ ZMErr(ZM_API *GetRulerUnits)(ZMUnits *units);
    /* 3 */ ZMErr(ZM_API *SetRulerUnits)(ZMUnits units);
    /* 4: a length in the current units in the current locale, no grouping: the value, a blank
       and the abbreviation. precision is ZM_UNITS_DEFAULT_PRECISION or 0-15 exact decimals.
       A value that is not finite is ZM_ERR_BAD_ARGUMENT. */
    ZMErr(ZM_API *FormatUnits)(double points, int32_t precision, ZMUnicodeString text);
    /* 5: as 4, in the given units; no document needed. */
    ZMErr(ZM_API *FormatUnitsIn)(double points, ZMUnits units, int32_t precision,
                                 ZMUnicodeString text);
    /* 6: a length as typed ("215.9 mm", "3in", "1,5 cm" in German): a number in the locale's
       form and an optional unit word (abbreviation, singular or plural name, any case); a bare
       number is in the current units. Text that is not a length is ZM_ERR_BAD_ARGUMENT. */
    ZMErr(ZM_API *ParseUnits)(ZMUnicodeString text, double *points);
    /* 7: as 6, a bare number being in defaultUnits; no document needed. */
    ZMErr(ZM_API *ParseUnitsIn)(ZMUnicodeString text, ZMUnits defaultUnits, double *points);
    /* 8: a value in one unit expressed in another. */
    ZMErr(ZM_API *ConvertUnits)(double value, ZMUnits from, ZMUnits to, double *result);
    /* 9: the length of one unit in points (72 for inches). */
    ZMErr(ZM_API *GetPointsPerUnit)(ZMUnits units, double *points);
    /* 10: how many units there are; their codes run from 0 to count - 1. */
    ZMErr(ZM_API *CountUnits)(int32_t *count);
    /* 11: the units a word names (see 6); ZM_ERR_NOT_FOUND for any other word. */
    ZMErr(ZM_API *FindUnitsByName)(ZMUnicodeString word, ZMUnits *units);
    /* 12: shows progress with a text. Progress nests: an inner Begin only changes the text,
       and the display goes with the outermost End. */
    ZMErr(ZM_API *BeginProgress)(ZMUnicodeString text);
    /* 13-15 with no progress shown are ZM_ERR_CANT. */
    /* 13 */ ZMErr(ZM_API *SetProgressText)(ZMUnicodeString text);
    /* 14: current of maximum done; negative values are ZM_ERR_BAD_ARGUMENT, a current value
       past the maximum shows as the maximum, a maximum of 0 shows work of unknown size. */
    ZMErr(ZM_API *UpdateProgress)(int32_t current, int32_t maximum);
    /* 15 */ ZMErr(ZM_API *EndProgress)(void);
    /* 16: whether the user asked to stop; 0 when no progress is shown. */
    ZMErr(ZM_API *IsProgressCancelled)(ZMBool *cancelled);
    /* 17: how many Begins are not yet ended. */
    ZMErr(ZM_API *GetProgressDepth)(int32_t *depth);
    /* 18: the save-file dialog. extensions lists the file types offered, without dots and
       separated by ";" ("txt;csv"); null or "" offers any file. A chosen name without one of
       the extensions gets the first. A chosen folder keeps the default name. Cancelling is
       ZM_ERR_USER_CANCELED and leaves the path as it was. */
    ZMErr(ZM_API *PutFileDialog)(ZMUnicodeString prompt, const char *extensions,
                                 ZMUnicodeString defaultName, ZMFilePath chosen);
    /* 19: the open-file dialog: an existing file with one of the extensions (as 18);
       ZM_ERR_NOT_FOUND when the answer is no such file, ZM_ERR_USER_CANCELED on cancel. */
    ZMErr(ZM_API *GetFileDialog)(ZMUnicodeString prompt, const char *extensions,
                                 ZMFilePath chosen);
    /* 20: the choose-folder dialog: an existing folder; codes as 19. */
    ZMErr(ZM_API *GetFolderDialog)(ZMUnicodeString prompt, ZMFilePath chosen);
    /* 21: "Zelmora". */
    ZMErr(ZM_API *GetApplicationName)(ZMUnicodeString name);
    /* 22 */ ZMErr(ZM_API *GetApplicationVersion)(int32_t *major, int32_t *minor, int32_t *patch);
    /* 23: the host's locale as a language tag ("en-US"). */
    ZMErr(ZM_API *GetLocale)(ZMUnicodeString tag);
    /* 24: the locale's name in its own language ("English (United States)", "Deutsch
       (Deutschland)"). */
    ZMErr(ZM_API *GetLocaleDisplayName)(ZMUnicodeString name);
    /* 25: the locale's decimal mark ("." in en-US, "," in de-DE). */
    ZMErr(ZM_API *GetDecimalSeparator)(ZMUnicodeString mark);
    /* 26: the locale's thousands separator ("," in en-US, "." in de-DE). */
    ZMErr(ZM_API *GetGroupingSeparator)(ZMUnicodeString mark);
    /* 27: 1 when the locale measures in metric units, 0 for US customary. */
    ZMErr(ZM_API *IsMetricLocale)(ZMBool *metric);
    /* 28: seconds since 1970-01-01 00:00 UTC. */
    ZMErr(ZM_API *GetCurrentTime)(int64_t *seconds);
    /* 29: a time of 28 in the local time zone. */
    ZMErr(ZM_API *GetLocalDateTime)(int64_t seconds, ZMDateTime *dateTime);
    /* 30: the date of a time of 28 in the locale's medium form ("Jan 2, 2024"), local zone. */
    ZMErr(ZM_API *FormatDate)(int64_t seconds, ZMUnicodeString text);
    /* 31: the time of day in the locale's short form ("3:04 PM"), local zone. */
    ZMErr(ZM_API *FormatTime)(int64_t seconds, ZMUnicodeString text);
    /* 32: milliseconds since the host started, from a clock that never goes back. */
    ZMErr(ZM_API *GetElapsedMilliseconds)(int64_t *milliseconds);
    /* 33: the current document's title: its file name with extension, "Untitled" when it has
       no file. */
    ZMErr(ZM_API *GetDocumentDisplayName)(ZMUnicodeString name);
    /* 34: a folder for temporary files. */
    ZMErr(ZM_API *GetTemporaryFolder)(ZMFilePath folder);
    /* 35: the folder of the running program. */
    ZMErr(ZM_API *GetApplicationFolder)(ZMFilePath folder);
    /* 36: 1 when the host has no windows, so dialogs are answered from its settings. */
    ZMErr(ZM_API *IsHeadless)(ZMBool *headless);
    /* 37: a warning alert. dontAskKey names a preference that lets the user silence it;
       null always shows it. */
    ZMErr(ZM_API *WarningAlert)(ZMUnicodeString text, const char *dontAskKey);
    /* 38: the name the user logs in with. */
    ZMErr(ZM_API *GetUserName)(ZMUnicodeString name);
    /* 39: the user's home folder. */
    ZMErr(ZM_API *GetHomeFolder)(ZMFilePath folder);
    /* 40: the ruler units a new document gets. */
    ZMErr(ZM_API *GetDefaultUnits)(ZMUnits *units);
    /* 41 */ ZMErr(ZM_API *ErrorAlert)(ZMUnicodeString text);
    /* 42 */ ZMErr(ZM_API *MessageAlert)(ZMUnicodeString text);
} ZMUserSuite;

#ifdef __cplusplus
}
#endif
