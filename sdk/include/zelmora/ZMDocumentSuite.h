#pragma once
/* Documents: setup, colour model, profiles and file of the current document. */
#include "ZMArtTypes.h"

#ifdef __cplusplus
extern "C" {
#endif

#define ZM_DOCUMENT_SUITE_NAME "ZM Document Suite"
#define ZM_DOCUMENT_SUITE_VERSION 16

/* A colour profile of a document. The colour conversion suite reads its name. Valid while
   its document is open. */
typedef struct ZMColorProfileOpaque *ZMColorProfile;

/* The text engine's resources of a document; the text resources suites read them. Counted:
   the entry that hands one out gives the caller a reference, ReleaseTextResources gives it
   back. */
typedef struct ZMTextResourcesOpaque *ZMTextResourcesRef;

/* Colour models. A document may carry another value; it is reported as it is. */
#define ZM_COLOR_MODEL_GRAY 0
#define ZM_COLOR_MODEL_RGB 1
#define ZM_COLOR_MODEL_CMYK 2

/* Ruler units. */
#define ZM_UNITS_POINTS 0
#define ZM_UNITS_PIXELS 1
#define ZM_UNITS_INCHES 2
#define ZM_UNITS_MILLIMETERS 3
#define ZM_UNITS_CENTIMETERS 4
#define ZM_UNITS_PICAS 5

typedef struct ZMDocumentSetup {
    double width;  /* points */
    double height; /* points */
    ZMBool showPlacedImages;
    int32_t reserved[9]; /* zero when read, ignored when written */
} ZMDocumentSetup;

/* Entries 2-15, 17, 18 and 19 work on the current document and return ZM_ERR_NO_DOCUMENT
   when none is open. Documents are ordered as they were opened; the last one is the current
   one. */
typedef struct ZMDocumentSuite {
    /* 0 */ ZMErr(ZM_API *CountDocuments)(int32_t *count);
    /* 1: ZM_ERR_BAD_ARGUMENT for an index outside 0..count-1. */
    ZMErr(ZM_API *GetNthDocument)(int32_t index, ZMDocumentHandle *document);
    /* 2: the file the document was opened from, into a path the caller made with the file
       path suite. ZM_ERR_NOT_FOUND for an untitled document; the path is left as it was. */
    ZMErr(ZM_API *GetDocumentFilePath)(ZMFilePath file);
    /* 3: ZM_COLOR_MODEL_... or any other value the document carries. */
    ZMErr(ZM_API *GetDocumentColorModel)(int16_t *model);
    /* 4: each profile, or a null handle when the document has none for that space. */
    ZMErr(ZM_API *GetDocumentColorProfiles)(ZMColorProfile *rgb, ZMColorProfile *cmyk,
                                            ZMColorProfile *gray);
    /* 5 */ ZMErr(ZM_API *GetDocumentSetup)(ZMDocumentSetup *setup);
    /* 6: ZM_UNITS_... */
    ZMErr(ZM_API *GetDocumentRulerUnits)(int16_t *units);
    /* 7: a new reference, given back with ReleaseTextResources. */
    ZMErr(ZM_API *GetDocumentTextResources)(ZMTextResourcesRef *resources);
    /* 8 */ ZMErr(ZM_API *AddRefTextResources)(ZMTextResourcesRef resources);
    /* 9: the resources go with their last reference. */
    ZMErr(ZM_API *ReleaseTextResources)(ZMTextResourcesRef resources);
    /* 10: the document's own dictionary; a new reference, given back with the dictionary
       suite's Release. What is set in it stays with the document. Valid while the document is
       open. */
    ZMErr(ZM_API *GetDocumentDictionary)(ZMDictionaryRef *dictionary);
    /* 11 */ ZMErr(ZM_API *IsDocumentUntitled)(ZMBool *untitled);
    /* 12: the page: (0, height) to (width, 0) of the document setup. */
    ZMErr(ZM_API *GetDocumentPageBounds)(ZMRealRect *bounds);
    /* 13: any value is kept; the host itself uses ZM_COLOR_MODEL_... */
    ZMErr(ZM_API *SetDocumentColorModel)(int16_t model);
    /* 14: ZM_ERR_BAD_ARGUMENT for a value that names no unit. */
    ZMErr(ZM_API *SetDocumentRulerUnits)(int16_t units);
    /* 15: ZM_ERR_BAD_ARGUMENT unless width and height are greater than 0. */
    ZMErr(ZM_API *SetDocumentSetup)(const ZMDocumentSetup *setup);
    /* 16: makes an open document the current one. ZM_ERR_BAD_ARGUMENT for a handle of no open
       document. */
    ZMErr(ZM_API *SetCurrentDocument)(ZMDocumentHandle document);
    /* 17: the file the document is saved to from now on; an empty path makes it untitled. */
    ZMErr(ZM_API *SetDocumentFilePath)(ZMFilePath file);
    /* 18: the artboards of the document (its pages). */
    ZMErr(ZM_API *CountDocumentArtboards)(int32_t *count);
    /* 19: the current document. */
    ZMErr(ZM_API *GetDocument)(ZMDocumentHandle *document);
} ZMDocumentSuite;

#ifdef __cplusplus
}
#endif
