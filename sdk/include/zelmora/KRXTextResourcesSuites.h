#pragma once
/* Text-engine resources of the application and of each document, and the engine's version. */
#include "ZMTypes.h"

#ifdef __cplusplus
extern "C" {
#endif

#define ZM_KRX_TEXT_RESOURCES_SUITE_NAME    "KRX TextResources Suite"
#define ZM_KRX_TEXT_RESOURCES_SUITE_VERSION 1

#define ZM_KRX_APPLICATION_TEXT_RESOURCES_SUITE_NAME    "KRX ApplicationTextResources Suite"
#define ZM_KRX_APPLICATION_TEXT_RESOURCES_SUITE_VERSION 1

#define ZM_KRX_DOCUMENT_TEXT_RESOURCES_SUITE_NAME    "KRX DocumentTextResources Suite"
#define ZM_KRX_DOCUMENT_TEXT_RESOURCES_SUITE_VERSION 101

#define ZM_KRX_VERSION_INFO_SUITE_NAME    "KRX VersionInfo Suite"
#define ZM_KRX_VERSION_INFO_SUITE_VERSION 1

#ifdef __cplusplus
}
#endif
