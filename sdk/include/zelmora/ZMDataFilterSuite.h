#pragma once
/* Data filters: byte streams read from and written to files. */
#include "ZMArtTypes.h"
#include "ZMTypes.h"

#include <stddef.h>

#ifdef __cplusplus
extern "C" {
#endif

#define ZM_DATA_FILTER_SUITE_NAME    "ZM Data Filter Suite"
#define ZM_DATA_FILTER_SUITE_VERSION 8

/* A file could not be opened or created. */
#define ZM_ERR_FILE_OPEN  ZM_FOUR_CHAR('O', 'P', 'N', '!')
/* Reading a file failed. */
#define ZM_ERR_FILE_READ  ZM_FOUR_CHAR('R', 'E', 'A', '!')
/* Writing a file failed (a full disk, a vanished folder). */
#define ZM_ERR_FILE_WRITE ZM_FOUR_CHAR('W', 'R', 'T', '!')

/* A filter is a block of the plug-in framework: one that was never linked may be given back
   with the LMB Plugin Suite's FreeBlock; a linked one goes with UnlinkDataFilter. */
typedef struct ZMDataFilterOpaque *ZMDataFilter;

/* A filter that writes never shows a partial file under its target's name: the bytes go to
   a new file beside the target, which replaces the target only when the filter is unlinked
   with error 0 after every write succeeded. Entries answer ZM_ERR_BAD_ARGUMENT for a null
   pointer or a filter the host did not make (or that is gone). */
typedef struct ZMDataFilterSuite {
    /* 0: a new filter on the file at path. mode is "read" or "write"; creator and type are
       the file's four-character codes, kept with the filter (files here carry no such codes).
       Nothing touches the disk before the filter is linked. ZM_ERR_BAD_ARGUMENT for an empty
       path or another mode. */
    ZMErr(ZM_API *NewFileDataFilter)(ZMFilePath path, const char *mode, uint32_t creator,
                                     uint32_t type, ZMDataFilter *filter);
    /* 1: puts filter after prior in a chain and opens it. File filters end a chain, so prior
       must be null (else ZM_ERR_BAD_ARGUMENT). A reading filter opens its file
       (ZM_ERR_NOT_FOUND when there is none, ZM_ERR_FILE_OPEN when it cannot be read); a
       writing filter creates its new file in the target's folder (ZM_ERR_FILE_OPEN when it
       cannot). Linking twice is ZM_ERR_BAD_ARGUMENT. */
    ZMErr(ZM_API *LinkDataFilter)(ZMDataFilter prior, ZMDataFilter filter);
    /* 2: takes filter out of its chain and disposes of it. A writing filter unlinked with
       error 0 after successful writes replaces its target with what it wrote; with any other
       error, or after a failed write, its new file is removed and the target is left as it
       was. The result is the first failure of the filter's writes, then that of replacing
       the target (ZM_ERR_FILE_WRITE), else 0. */
    ZMErr(ZM_API *UnlinkDataFilter)(ZMDataFilter filter, ZMErr error);
    /* 3: up to *count bytes into buffer; *count becomes the number read, 0 at the end of the
       file. ZM_ERR_BAD_ARGUMENT for a filter that does not read or is not linked. */
    ZMErr(ZM_API *ReadDataFilter)(ZMDataFilter filter, void *buffer, size_t *count);
    /* 4: count bytes from buffer. ZM_ERR_BAD_ARGUMENT for a filter that does not write or
       is not linked; ZM_ERR_FILE_WRITE when the bytes cannot be written. */
    ZMErr(ZM_API *WriteDataFilter)(ZMDataFilter filter, const void *buffer, size_t count);
} ZMDataFilterSuite;

#ifdef __cplusplus
}
#endif
