#pragma once
/* The basic suite: the one table every message carries. */
#include "ZMTypes.h"

#ifdef __cplusplus
extern "C" {
#endif

typedef struct ZMBasicSuite {
    /* 0: fills *suite with the table of that name and version. Each successful call counts
       as one acquisition, to be matched by one ReleaseSuite. ZM_ERR_SUITE_NOT_FOUND for an
       unknown name or version; *suite is then left as it was. */
    ZMErr(ZM_API *AcquireSuite)(const char *name, int32_t version, const void **suite);
    /* 1: gives one acquisition back. */
    ZMErr(ZM_API *ReleaseSuite)(const char *name, int32_t version);
    /* 2: nonzero when the two zero-terminated strings are equal. */
    int32_t(ZM_API *IsEqual)(const char *first, const char *second);
    /* 3: a zero-filled block of size bytes, owned by the host; null in *block when there is
       no memory (then ZM_ERR_NO_MEMORY). The host frees what is left when it quits. */
    ZMErr(ZM_API *AllocateBlock)(size_t size, void **block);
    /* 4: gives a block of AllocateBlock back; null is ignored. */
    ZMErr(ZM_API *FreeBlock)(void *block);
} ZMBasicSuite;

#ifdef __cplusplus
}
#endif
