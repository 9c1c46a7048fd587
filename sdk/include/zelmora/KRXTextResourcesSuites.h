#pragma once
/* Text-engine resources of the application and of each document, and the engine's version. */
#include "KRXCharSuites.h"
#include "KRXCompFontSuites.h"
#include "KRXKinsokuSuites.h"
#include "KRXMojiKumiSuites.h"
#include "KRXParagraphSuites.h"
#include "ZMDocumentSuite.h"

#ifdef __cplusplus
extern "C" {
#endif

#define ZM_KRX_TEXT_RESOURCES_SUITE_NAME    "KRX TextResources Suite"
#define ZM_KRX_TEXT_RESOURCES_SUITE_VERSION 1

/* What a document's or the application's text resources hold. Every entry hands out a new
   object: the host's resources hold no composition rules and no composite fonts, and their
   styles are the normal ones. A reference the host did not make, or one already released, is
   ZM_ERR_BAD_ARGUMENT. */
typedef struct KRXTextResourcesSuite {
    /* 0 */ ZMErr(ZM_API *AddRef)(ZMTextResourcesRef resources);
    /* 1 */ ZMErr(ZM_API *Release)(ZMTextResourcesRef resources);
    /* 2: empty */
    ZMErr(ZM_API *GetKinsokuSet)(ZMTextResourcesRef resources, KRXKinsokuSetRef *set);
    /* 3: empty */
    ZMErr(ZM_API *GetMojiKumiSet)(ZMTextResourcesRef resources, KRXMojiKumiSetRef *set);
    /* 4: empty */
    ZMErr(ZM_API *GetCompFontSet)(ZMTextResourcesRef resources, KRXCompFontSetRef *set);
    /* 5: "Normal Character Style" alone */
    ZMErr(ZM_API *GetCharStyles)(ZMTextResourcesRef resources, KRXCharStylesRef *styles);
    /* 6: "Normal Paragraph Style" alone */
    ZMErr(ZM_API *GetParaStyles)(ZMTextResourcesRef resources, KRXParaStylesRef *styles);
} KRXTextResourcesSuite;

#define ZM_KRX_APPLICATION_TEXT_RESOURCES_SUITE_NAME    "KRX ApplicationTextResources Suite"
#define ZM_KRX_APPLICATION_TEXT_RESOURCES_SUITE_VERSION 1

/* The application's text resources: read with the text resources suite, and with the
   document text resources suite, whose settings are all off for the application. */
typedef struct KRXApplicationTextResourcesSuite {
    /* 0: a new reference, given back with Release of either resources suite */
    ZMErr(ZM_API *GetApplicationTextResources)(ZMTextResourcesRef *resources);
} KRXApplicationTextResourcesSuite;

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

/* The text engine's own version, 1.1. */
#define KRX_ENGINE_MAJOR_VERSION 1
#define KRX_ENGINE_MINOR_VERSION 1

typedef struct KRXVersionInfoSuite {
    /* 0 */ ZMErr(ZM_API *GetMajorVersion)(int32_t *major);
    /* 1 */ ZMErr(ZM_API *GetMinorVersion)(int32_t *minor);
} KRXVersionInfoSuite;

#ifdef __cplusplus
}
#endif
