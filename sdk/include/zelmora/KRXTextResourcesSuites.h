#pragma once
/* Text-engine resources of the application and of each document, and the engine's version. */
#include "ZMDocumentSuite.h"
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

/* Settings of a document's text resources, as they were when the reference was handed out.
   Each flag is 0 or 1. */
typedef struct ZMKRXDocumentTextResourcesSuite {
    /* 0 */ ZMErr(ZM_API *GetHighlightSubstitutedFonts)(ZMTextResourcesRef resources,
                                                       uint8_t *highlight);
    /* 1 */ ZMErr(ZM_API *GetHighlightSubstitutedGlyphs)(ZMTextResourcesRef resources,
                                                        uint8_t *highlight);
} ZMKRXDocumentTextResourcesSuite;

#define ZM_KRX_VERSION_INFO_SUITE_NAME    "KRX VersionInfo Suite"
#define ZM_KRX_VERSION_INFO_SUITE_VERSION 1

#ifdef __cplusplus
}
#endif
