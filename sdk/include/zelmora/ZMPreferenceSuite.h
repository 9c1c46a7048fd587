#pragma once
/* Host preferences, read and written by key. */
#include "ZMArtTypes.h"

#ifdef __cplusplus
extern "C" {
#endif

#define ZM_PREFERENCE_SUITE_NAME    "ZM Preference Suite"
#define ZM_PREFERENCE_SUITE_VERSION 6

/* A preference is named by a prefix and a suffix, "prefix/suffix"; a null prefix names the
   suffix alone. Reading a preference that is not set succeeds and leaves the caller's value
   (its default) as it was. A preference whose stored text does not read as the type asked
   for is ZM_ERR_WRONG_TYPE, the value again left as it was. */
typedef struct ZMPreferenceSuite {
    /* 0 */ ZMErr(ZM_API *GetBooleanPreference)(const char *prefix, const char *suffix,
                                                ZMBool *value);
    /* 1: any non-zero value is stored as true. */
    ZMErr(ZM_API *PutBooleanPreference)(const char *prefix, const char *suffix, ZMBool value);
    /* 2 */ ZMErr(ZM_API *GetIntegerPreference)(const char *prefix, const char *suffix,
                                                int32_t *value);
    /* 3 */ ZMErr(ZM_API *PutIntegerPreference)(const char *prefix, const char *suffix,
                                                int32_t value);
    /* 4 */ ZMErr(ZM_API *GetRealPreference)(const char *prefix, const char *suffix,
                                             double *value);
    /* 5 */ ZMErr(ZM_API *PutRealPreference)(const char *prefix, const char *suffix,
                                             double value);
    /* 6: into a string the caller made. */
    ZMErr(ZM_API *GetStringPreference)(const char *prefix, const char *suffix,
                                       ZMUnicodeString value);
    /* 7: a null string stores the empty text. */
    ZMErr(ZM_API *PutStringPreference)(const char *prefix, const char *suffix,
                                       ZMUnicodeString value);
} ZMPreferenceSuite;

#ifdef __cplusplus
}
#endif
