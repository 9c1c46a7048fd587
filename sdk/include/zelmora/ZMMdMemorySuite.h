#pragma once
/* Memory blocks handed out by the host and given back to it. */
#include "ZMArtTypes.h"
#include "ZMTypes.h"

#ifdef __cplusplus
extern "C" {
#endif

#define ZM_MD_MEMORY_SUITE_NAME    "ZM MdMemory Suite"
#define ZM_MD_MEMORY_SUITE_VERSION 3

/* A memory handle names a block of bytes that the caller owns until it disposes of the
   handle. The handle never changes; the block's address may change when it is resized, so
   dereference the handle again after resizing. Entries answer ZM_ERR_BAD_ARGUMENT for a null
   out-pointer or a handle the host did not make (or that is disposed of), and
   ZM_ERR_NO_MEMORY when there is no memory. */
typedef struct ZMMdMemorySuite {
    /* 0: a new block of size bytes; do not count on what it holds. */
    ZMErr(ZM_API *NewHandle)(size_t size, ZMMdMemoryHandle *handle);
    /* 1: a new block of size bytes, all zero. */
    ZMErr(ZM_API *NewHandleClear)(size_t size, ZMMdMemoryHandle *handle);
    /* 2: gives the block back; a null handle is ignored. */
    ZMErr(ZM_API *DisposeHandle)(ZMMdMemoryHandle handle);
    /* 3: the block's size in bytes. */
    ZMErr(ZM_API *GetHandleSize)(ZMMdMemoryHandle handle, size_t *size);
    /* 4: makes the block size bytes long, keeping what fits; new bytes are zero. */
    ZMErr(ZM_API *SetHandleSize)(ZMMdMemoryHandle handle, size_t size);
    /* 5: the block's address, never null (also for a block of 0 bytes). */
    ZMErr(ZM_API *MdMemoryHandleDeref)(ZMMdMemoryHandle handle, void **block);
} ZMMdMemorySuite;

#ifdef __cplusplus
}
#endif
