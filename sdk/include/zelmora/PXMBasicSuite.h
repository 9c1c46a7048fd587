#pragma once
/* Resource access for a plug-in: its string table. */
#include "ZMTypes.h"

#ifdef __cplusplus
extern "C" {
#endif

#define ZM_PXM_BASIC_SUITE_NAME    "PXM Basic Suite"
#define ZM_PXM_BASIC_SUITE_VERSION 12

typedef struct PXMBasicSuite {
    /* 0: string index (1-based) of string list listId from the plug-in's string table,
       localized for the host's locale, as UTF-8. At most maxLength bytes are written,
       then a NUL, so buffer holds maxLength + 1 bytes; a longer text is cut at a character
       boundary. ZM_ERR_NOT_FOUND leaves buffer untouched. */
    ZMErr(ZM_API *GetIndexedString)(ZMPluginRef plugin, int32_t listId, int32_t index,
                                    char *buffer, int32_t maxLength);
    /* 1: the string's key as the table holds it ("$$$/Group/Key=Default"), same rules. */
    ZMErr(ZM_API *GetIndexedStringKey)(ZMPluginRef plugin, int32_t listId, int32_t index,
                                       char *buffer, int32_t maxLength);
} PXMBasicSuite;

#ifdef __cplusplus
}
#endif
