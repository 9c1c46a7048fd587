#pragma once
/* The host's font catalogue, and the glue between its fonts and the text engine's. */
#include "KRXTypes.h"
#include "ZMTypes.h"

#ifdef __cplusplus
extern "C" {
#endif

#define ZM_FONT_SUITE_NAME    "ZM Font Suite"
#define ZM_FONT_SUITE_VERSION 6

#define ZM_FONT_GLUE_SUITE_NAME    "ZM Font Glue Suite"
#define ZM_FONT_GLUE_SUITE_VERSION 8

/* A font of the catalogue: one family, weight and style as text names them. The same request
   gives the same key for as long as the host runs. */
typedef struct ZMFontKeyOpaque *ZMFontKey;
/* The font program a key resolved to; shared by every key that resolved to the same program
   and valid for as long as the host runs. */
typedef struct ZMPlatformFontOpaque *ZMPlatformFont;

/* Outline technologies. */
typedef int32_t ZMFontTechnology;
#define ZM_FONT_TECHNOLOGY_POSTSCRIPT 0 /* CFF or Type 1 outlines */
#define ZM_FONT_TECHNOLOGY_TRUETYPE   1 /* TrueType outlines */
#define ZM_FONT_TECHNOLOGY_OTHER      2 /* neither: a bitmap format, PFR, or not installed */

/* Script codes: the script a font is made for, read from the code pages it declares. */
typedef int32_t ZMFontScript;
#define ZM_FONT_SCRIPT_UNKNOWN             (-1)
#define ZM_FONT_SCRIPT_ROMAN               0
#define ZM_FONT_SCRIPT_JAPANESE            1
#define ZM_FONT_SCRIPT_TRADITIONAL_CHINESE 2
#define ZM_FONT_SCRIPT_KOREAN              3
#define ZM_FONT_SCRIPT_CYRILLIC            7
#define ZM_FONT_SCRIPT_SIMPLIFIED_CHINESE  25
#define ZM_FONT_SCRIPT_CENTRAL_EUROPEAN    29
#define ZM_FONT_SCRIPT_SYMBOL              32

/* What the catalogue knows of one font. A font that is not installed has a null platform
   font, technology ZM_FONT_TECHNOLOGY_OTHER, script ZM_FONT_SCRIPT_UNKNOWN and every flag 0. */
typedef struct ZMFontInfo {
    ZMPlatformFont platformFont;
    ZMFontTechnology technology;
    ZMFontScript script;
    intptr_t installed;     /* non-zero when a font program on this system serves the font */
    int32_t cid;            /* non-zero: CID-keyed outlines */
    int32_t tsumeKind;      /* proportional Japanese metrics; always 0, none */
    uint8_t openType;       /* an OpenType font with CFF outlines */
    uint8_t bitmap;         /* no scalable outlines */
    uint8_t type1;          /* a plain Type 1 font program */
    uint8_t composite;      /* assembled from other fonts; always 0 */
    int32_t alternateName;  /* non-zero: a full name other than the PostScript name exists */
} ZMFontInfo;

/* Names are written into the caller's buffer of bufferSize bytes with a closing NUL. A name
   that does not fit is cut after the last whole character that does, and the entry still
   succeeds. bufferSize below 1 is ZM_ERR_BAD_ARGUMENT, as are a null buffer and a key the
   host never gave out. */
typedef struct ZMFontSuite {
    /* 0: family in UTF-8 (not empty); weight 1..1000 as CSS counts it (400 regular, 700
       bold); style "normal", "italic" or "oblique". A family that no installed font program
       has gives a key all the same: the font is then not installed. */
    ZMErr(ZM_API *FindFontKey)(const char *family, int32_t weight, const char *style,
                               ZMFontKey *key);
    /* 1 */ ZMErr(ZM_API *GetFontInfo)(ZMFontKey key, ZMFontInfo *info);
    /* 2: ASCII for installed fonts. A font that is not installed: the family without blanks,
       then "-" and the style unless it is regular ("QwertyuiopSans-Bold"), in UTF-8. */
    ZMErr(ZM_API *GetPostScriptName)(ZMFontKey key, char *buffer, int32_t bufferSize);
    /* 3: the name to show instead of the PostScript name, in UTF-8 ("Liberation Sans Bold").
       A font that is not installed: its family, a blank and the style in words ("Qwertyuiop
       Sans Bold"), a name of the host's making, so its info names no alternate name. */
    ZMErr(ZM_API *GetFullName)(ZMFontKey key, char *buffer, int32_t bufferSize);
    /* 4: the family name a Windows system lists the font under, in the Windows code page of
       the font's script: Roman windows-1252, Japanese Shift_JIS (932), Traditional Chinese
       Big5 (950), Korean 949, Simplified Chinese GBK (936), Cyrillic windows-1251, Central
       European windows-1250, anything else windows-1252; a character the code page lacks is
       "?". A font that is not installed: its family as the text names it. */
    ZMErr(ZM_API *GetWindowsName)(ZMFontKey key, char *buffer, int32_t bufferSize);
    /* 5: the catalogue's key of a text-engine font. */
    ZMErr(ZM_API *FontKeyFromKRXFont)(KRXFontRef font, ZMFontKey *key);
    /* 6: the text engine's font for a key, a new reference (given back with the text
       engine's font suite). */
    ZMErr(ZM_API *KRXFontFromFontKey)(ZMFontKey key, KRXFontRef *font);
} ZMFontSuite;

/* The host preference that turns the alternate-name setting on: "fontAlternateNames", a
   boolean ("true" or "false", "1" or "0"); unset means off. */
#define ZM_FONT_ALTERNATE_NAMES_PREFERENCE "fontAlternateNames"

typedef struct ZMFontGlueSuite {
    /* 0: 1 when fonts are to be listed by their full names where they have one, else 0.
       ZM_ERR_WRONG_TYPE when the preference holds something other than a boolean. */
    ZMErr(ZM_API *GetAlternateNameSetting)(int32_t *setting);
    /* 1: design axes of a multiple-master or variable font program, 0 for any other. A null
       or unknown platform font is ZM_ERR_BAD_ARGUMENT. */
    ZMErr(ZM_API *CountDesignAxes)(ZMPlatformFont font, int32_t *count);
} ZMFontGlueSuite;

#ifdef __cplusplus
}
#endif
