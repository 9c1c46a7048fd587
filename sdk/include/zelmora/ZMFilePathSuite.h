#pragma once
/* File paths: file locations independent of the platform's spelling. */
#include "ZMArtTypes.h"

#ifdef __cplusplus
extern "C" {
#endif

#define ZM_FILE_PATH_SUITE_NAME    "ZM File Path Suite"
#define ZM_FILE_PATH_SUITE_VERSION 5

/* Display flags. */
#define ZM_FILE_PATH_DISPLAY_FULL 1 /* the whole path from the root; else the file name */

/* Entries that fill a string write into one the caller made. A path handle the host did not
   make is ZM_ERR_BAD_ARGUMENT. */
typedef struct ZMFilePathSuite {
    /* 0: a new empty path, owned by the caller until Dispose. */
    ZMErr(ZM_API *NewFilePath)(ZMFilePath *path);
    /* 1: null is ignored. */
    ZMErr(ZM_API *DisposeFilePath)(ZMFilePath path);
    /* 2 */ ZMErr(ZM_API *SetFromString)(ZMFilePath path, ZMUnicodeString text);
    /* 3: the path as it was set. */
    ZMErr(ZM_API *GetAsString)(ZMFilePath path, ZMUnicodeString text);
    /* 4: as users see it: with ZM_FILE_PATH_DISPLAY_FULL the whole path (a relative path is
       taken from the current folder), else the file name with its extension. */
    ZMErr(ZM_API *GetDisplayString)(ZMFilePath path, int32_t flags, ZMUnicodeString text);
    /* 5: the last part of the path, without its extension unless withExtension is non-zero. */
    ZMErr(ZM_API *GetFileName)(ZMFilePath path, ZMBool withExtension, ZMUnicodeString name);
    /* 6: the folder that holds it, into another path the caller made; empty when the path has
       no folder part. */
    ZMErr(ZM_API *GetParent)(ZMFilePath path, ZMFilePath parent);
    /* 7: whether something exists at the path; an empty path exists nowhere. */
    ZMErr(ZM_API *Exists)(ZMFilePath path, ZMBool *exists);
} ZMFilePathSuite;

#ifdef __cplusplus
}
#endif
