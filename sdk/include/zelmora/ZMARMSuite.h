#pragma once
/* Asset references: the addresses of linked assets that the host manages. */
#include "ZMArtTypes.h"
#include "ZMTypes.h"

#ifdef __cplusplus
extern "C" {
#endif

#define ZM_ARM_SUITE_NAME    "ZM ARM Suite"
#define ZM_ARM_SUITE_VERSION 3

/* This suite is optional. */
typedef struct ZMARMSuite {
    /* 0: 1 when the host keeps asset addresses; this host always does. */
    ZMErr(ZM_API *IsAvailable)(ZMBool *available);
    /* 1: the asset address of placed or raster art: UTF-8, zero-terminated, owned by the
       host and valid while the art lives; "" when the art has none. Other art is
       ZM_ERR_WRONG_ART_TYPE, a null pointer or a handle naming no art ZM_ERR_BAD_ARGUMENT,
       no open document ZM_ERR_NO_DOCUMENT. */
    ZMErr(ZM_API *GetAssetUrl)(ZMArtHandle art, const char **url);
} ZMARMSuite;

#ifdef __cplusplus
}
#endif
