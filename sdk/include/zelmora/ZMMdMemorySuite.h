#pragma once
/* Memory blocks handed out by the host and given back to it. */
#include "ZMTypes.h"

#ifdef __cplusplus
extern "C" {
#endif

#define ZM_MD_MEMORY_SUITE_NAME    "ZM MdMemory Suite"
#define ZM_MD_MEMORY_SUITE_VERSION 3

#ifdef __cplusplus
}
#endif
