#pragma once
/* Dictionaries: keyed values kept with a document or an art object. */
#include "ZMArtTypes.h"

#ifdef __cplusplus
extern "C" {
#endif

#define ZM_DICTIONARY_SUITE_NAME    "ZM Dictionary Suite"
#define ZM_DICTIONARY_SUITE_VERSION 8

/* Dictionaries are counted: whoever hands one out gives the caller a reference, Release
   gives it back, and a dictionary of its own goes with its last reference. Keys are made
   once per text and live as long as the host. A missing entry is ZM_ERR_NOT_FOUND; an entry
   of another type than the one asked for is ZM_ERR_WRONG_TYPE. A failed read leaves the
   caller's value as it was. */
typedef struct ZMDictionarySuite {
    /* 0: a new empty dictionary of its own, with one reference. */
    ZMErr(ZM_API *NewDictionary)(ZMDictionaryRef *dictionary);
    /* 1 */ ZMErr(ZM_API *AddRef)(ZMDictionaryRef dictionary);
    /* 2 */ ZMErr(ZM_API *Release)(ZMDictionaryRef dictionary);
    /* 3: the key of a zero-terminated UTF-8 text; the same text always gives the same key. */
    ZMErr(ZM_API *Key)(const char *text, ZMDictKey *key);
    /* 4: the key's text, owned by the host. */
    ZMErr(ZM_API *GetKeyText)(ZMDictKey key, const char **text);
    /* 5 */ ZMErr(ZM_API *IsKnown)(ZMDictionaryRef dictionary, ZMDictKey key, ZMBool *known);
    /* 6 */ ZMErr(ZM_API *CountEntries)(ZMDictionaryRef dictionary, int32_t *count);
    /* 7: ZM_ERR_NOT_FOUND when there is no such entry. */
    ZMErr(ZM_API *DeleteEntry)(ZMDictionaryRef dictionary, ZMDictKey key);
    /* 8 */ ZMErr(ZM_API *GetBooleanEntry)(ZMDictionaryRef dictionary, ZMDictKey key,
                                           ZMBool *value);
    /* 9: any non-zero value is stored as true. */
    ZMErr(ZM_API *SetBooleanEntry)(ZMDictionaryRef dictionary, ZMDictKey key, ZMBool value);
    /* 10 */ ZMErr(ZM_API *GetIntegerEntry)(ZMDictionaryRef dictionary, ZMDictKey key,
                                            int32_t *value);
    /* 11 */ ZMErr(ZM_API *SetIntegerEntry)(ZMDictionaryRef dictionary, ZMDictKey key,
                                            int32_t value);
    /* 12 */ ZMErr(ZM_API *GetRealEntry)(ZMDictionaryRef dictionary, ZMDictKey key,
                                         double *value);
    /* 13 */ ZMErr(ZM_API *SetRealEntry)(ZMDictionaryRef dictionary, ZMDictKey key,
                                         double value);
    /* 14: into a string the caller made. */
    ZMErr(ZM_API *GetStringEntry)(ZMDictionaryRef dictionary, ZMDictKey key,
                                  ZMUnicodeString value);
    /* 15: a null string stores the empty text. */
    ZMErr(ZM_API *SetStringEntry)(ZMDictionaryRef dictionary, ZMDictKey key,
                                  ZMUnicodeString value);
} ZMDictionarySuite;

#ifdef __cplusplus
}
#endif
