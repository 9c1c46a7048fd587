#pragma once
/* Text-engine resources of the application and of each document, and the engine's version. */
#include "ZMDocumentSuite.h"

#ifdef __cplusplus
extern "C" {
#endif

#define ZM_KRX_TEXT_RESOURCES_SUITE_NAME    "KRX TextResources Suite"
#define ZM_KRX_TEXT_RESOURCES_SUITE_VERSION 1

#define ZM_KRX_APPLICATION_TEXT_RESOURCES_SUITE_NAME    "KRX ApplicationTextResources Suite"
#define ZM_KRX_APPLICATION_TEXT_RESOURCES_SUITE_VERSION 1

#define ZM_KRX_DOCUMENT_TEXT_RESOURCES_SUITE_NAME    "KRX DocumentTextResources Suite"
#define ZM_KRX_DOCUMENT_TEXT_RESOURCES_SUITE_VERSION 101

/* The text settings of a document, read through the reference the document suite hands out.
   A reference the host did not make, or one already released, is ZM_ERR_BAD_ARGUMENT. */
typedef struct KRXDocumentTextResourcesSuite {
    /* 0: 1 when substituted fonts are highlighted, else 0. */
    ZMErr(ZM_API *GetHighlightSubstitutedFonts)(ZMTextResourcesRef resources, uint8_t *highlight);
    /* 1: 1 when substituted glyphs are highlighted, else 0. */
    ZMErr(ZM_API *GetHighlightSubstitutedGlyphs)(ZMTextResourcesRef resources,
                                                 uint8_t *highlight);
    /* 2: one more reference; each is given back with Release. */
    ZMErr(ZM_API *AddRef)(ZMTextResourcesRef resources);
    /* 3: the settings go with their last reference. */
    ZMErr(ZM_API *Release)(ZMTextResourcesRef resources);
} KRXDocumentTextResourcesSuite;

#define ZM_KRX_VERSION_INFO_SUITE_NAME    "KRX VersionInfo Suite"
#define ZM_KRX_VERSION_INFO_SUITE_VERSION 1

#ifdef __cplusplus
}
#endif
