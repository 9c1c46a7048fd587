#pragma once
/* Usage data: named groups of key and value texts that the host appends to its usage log. */
#include "ZMTypes.h"

#ifdef __cplusplus
extern "C" {
#endif

#define ZM_QUORVEL_PIP_SUITE_NAME    "ZM QuorvelPIP Suite"
#define ZM_QUORVEL_PIP_SUITE_VERSION 1

/* A group being logged. It belongs to the host and stays valid until the next group begins
   or the host ends; a group that is no longer current is ZM_ERR_BAD_ARGUMENT. */
typedef struct ZMUsageGroupOpaque *ZMUsageGroup;

/* Texts are UTF-8 and not empty (a value may be empty); a null pointer or malformed UTF-8 is
   ZM_ERR_BAD_ARGUMENT. Entries keep the order they were added in. */
typedef struct ZMQuorvelPIPSuite {
    /* 0: 1 when the host keeps a usage log, else 0; groups given to a host that keeps none
       are accepted and dropped. */
    ZMErr(ZM_API *IsLogging)(int32_t *logging);
    /* 1: begins a group of that name; the group before it is complete from then on. */
    ZMErr(ZM_API *BeginGroup)(const char *name, ZMUsageGroup *group);
    /* 2: adds one entry to the current group. */
    ZMErr(ZM_API *AddEntry)(ZMUsageGroup group, const char *key, const char *value);
} ZMQuorvelPIPSuite;

#ifdef __cplusplus
}
#endif
