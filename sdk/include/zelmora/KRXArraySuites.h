#pragma once
/* Text-engine arrays: the typed value arrays that text features are read and written through. */
#include "KRXTypes.h"
#include "ZMArtTypes.h"
#include "ZMTypes.h"

#ifdef __cplusplus
extern "C" {
#endif

#define ZM_KRX_ARRAY_APPLICATION_PAINT_REF_SUITE_NAME    "KRX ArrayApplicationPaintRef Suite"
#define ZM_KRX_ARRAY_APPLICATION_PAINT_REF_SUITE_VERSION 1

#define ZM_KRX_ARRAY_REAL_SUITE_NAME    "KRX ArrayReal Suite"
#define ZM_KRX_ARRAY_REAL_SUITE_VERSION 1

#define ZM_KRX_ARRAY_BOOL_SUITE_NAME    "KRX ArrayBool Suite"
#define ZM_KRX_ARRAY_BOOL_SUITE_VERSION 1

#define ZM_KRX_ARRAY_INTEGER_SUITE_NAME    "KRX ArrayInteger Suite"
#define ZM_KRX_ARRAY_INTEGER_SUITE_VERSION 1

#define ZM_KRX_ARRAY_LINE_CAP_TYPE_SUITE_NAME    "KRX ArrayLineCapType Suite"
#define ZM_KRX_ARRAY_LINE_CAP_TYPE_SUITE_VERSION 1

#define ZM_KRX_ARRAY_FIGURE_STYLE_SUITE_NAME    "KRX ArrayFigureStyle Suite"
#define ZM_KRX_ARRAY_FIGURE_STYLE_SUITE_VERSION 1

#define ZM_KRX_ARRAY_LINE_JOIN_TYPE_SUITE_NAME    "KRX ArrayLineJoinType Suite"
#define ZM_KRX_ARRAY_LINE_JOIN_TYPE_SUITE_VERSION 1

#define ZM_KRX_ARRAY_WARI_CHU_JUSTIFICATION_SUITE_NAME    "KRX ArrayWariChuJustification Suite"
#define ZM_KRX_ARRAY_WARI_CHU_JUSTIFICATION_SUITE_VERSION 1

#define ZM_KRX_ARRAY_STYLE_RUN_ALIGNMENT_SUITE_NAME    "KRX ArrayStyleRunAlignment Suite"
#define ZM_KRX_ARRAY_STYLE_RUN_ALIGNMENT_SUITE_VERSION 1

#define ZM_KRX_ARRAY_AUTO_KERN_TYPE_SUITE_NAME    "KRX ArrayAutoKernType Suite"
#define ZM_KRX_ARRAY_AUTO_KERN_TYPE_SUITE_VERSION 1

#define ZM_KRX_ARRAY_BASELINE_DIRECTION_SUITE_NAME    "KRX ArrayBaselineDirection Suite"
#define ZM_KRX_ARRAY_BASELINE_DIRECTION_SUITE_VERSION 1

#define ZM_KRX_ARRAY_LANGUAGE_SUITE_NAME    "KRX ArrayLanguage Suite"
#define ZM_KRX_ARRAY_LANGUAGE_SUITE_VERSION 1

#define ZM_KRX_ARRAY_FONT_CAPS_OPTION_SUITE_NAME    "KRX ArrayFontCapsOption Suite"
#define ZM_KRX_ARRAY_FONT_CAPS_OPTION_SUITE_VERSION 1

#define ZM_KRX_ARRAY_FONT_BASELINE_OPTION_SUITE_NAME    "KRX ArrayFontBaselineOption Suite"
#define ZM_KRX_ARRAY_FONT_BASELINE_OPTION_SUITE_VERSION 1

#define ZM_KRX_ARRAY_FONT_OPEN_TYPE_POSITION_OPTION_SUITE_NAME \
    "KRX ArrayFontOpenTypePositionOption Suite"
#define ZM_KRX_ARRAY_FONT_OPEN_TYPE_POSITION_OPTION_SUITE_VERSION 1

#define ZM_KRX_ARRAY_UNDERLINE_POSITION_SUITE_NAME    "KRX ArrayUnderlinePosition Suite"
#define ZM_KRX_ARRAY_UNDERLINE_POSITION_SUITE_VERSION 1

#define ZM_KRX_ARRAY_STRIKETHROUGH_POSITION_SUITE_NAME    "KRX ArrayStrikethroughPosition Suite"
#define ZM_KRX_ARRAY_STRIKETHROUGH_POSITION_SUITE_VERSION 1

#define ZM_KRX_ARRAY_PARAGRAPH_JUSTIFICATION_SUITE_NAME    "KRX ArrayParagraphJustification Suite"
#define ZM_KRX_ARRAY_PARAGRAPH_JUSTIFICATION_SUITE_VERSION 1

#define ZM_KRX_ARRAY_ARRAY_REAL_SUITE_NAME    "KRX ArrayArrayReal Suite"
#define ZM_KRX_ARRAY_ARRAY_REAL_SUITE_VERSION 1

#define ZM_KRX_ARRAY_BURASAGARI_TYPE_SUITE_NAME    "KRX ArrayBurasagariType Suite"
#define ZM_KRX_ARRAY_BURASAGARI_TYPE_SUITE_VERSION 1

#define ZM_KRX_ARRAY_PREFERRED_KINSOKU_ORDER_SUITE_NAME    "KRX ArrayPreferredKinsokuOrder Suite"
#define ZM_KRX_ARRAY_PREFERRED_KINSOKU_ORDER_SUITE_VERSION 1

#define ZM_KRX_ARRAY_KINSOKU_REF_SUITE_NAME    "KRX ArrayKinsokuRef Suite"
#define ZM_KRX_ARRAY_KINSOKU_REF_SUITE_VERSION 1

#define ZM_KRX_ARRAY_MOJI_KUMI_REF_SUITE_NAME    "KRX ArrayMojiKumiRef Suite"
#define ZM_KRX_ARRAY_MOJI_KUMI_REF_SUITE_VERSION 1

#define ZM_KRX_ARRAY_MOJI_KUMI_SET_REF_SUITE_NAME    "KRX ArrayMojiKumiSetRef Suite"
#define ZM_KRX_ARRAY_MOJI_KUMI_SET_REF_SUITE_VERSION 1

#define ZM_KRX_ARRAY_TAB_STOPS_REF_SUITE_NAME    "KRX ArrayTabStopsRef Suite"
#define ZM_KRX_ARRAY_TAB_STOPS_REF_SUITE_VERSION 1

#define ZM_KRX_ARRAY_LEADING_TYPE_SUITE_NAME    "KRX ArrayLeadingType Suite"
#define ZM_KRX_ARRAY_LEADING_TYPE_SUITE_VERSION 1

#define ZM_KRX_ARRAY_FONT_REF_SUITE_NAME    "KRX ArrayFontRef Suite"
#define ZM_KRX_ARRAY_FONT_REF_SUITE_VERSION 1

#define ZM_KRX_ARRAY_GLYPH_ID_SUITE_NAME    "KRX ArrayGlyphID Suite"
#define ZM_KRX_ARRAY_GLYPH_ID_SUITE_VERSION 1

#define ZM_KRX_ARRAY_REAL_POINT_SUITE_NAME    "KRX ArrayRealPoint Suite"
#define ZM_KRX_ARRAY_REAL_POINT_SUITE_VERSION 1

#define ZM_KRX_ARRAY_REAL_MATRIX_SUITE_NAME    "KRX ArrayRealMatrix Suite"
#define ZM_KRX_ARRAY_REAL_MATRIX_SUITE_VERSION 1

#define ZM_KRX_ARRAY_PARAGRAPH_DIRECTION_SUITE_NAME    "KRX ArrayParagraphDirection Suite"
#define ZM_KRX_ARRAY_PARAGRAPH_DIRECTION_SUITE_VERSION 1

#define ZM_KRX_ARRAY_JUSTIFICATION_METHOD_SUITE_NAME    "KRX ArrayJustificationMethod Suite"
#define ZM_KRX_ARRAY_JUSTIFICATION_METHOD_SUITE_VERSION 1

#define ZM_KRX_ARRAY_KASHIDA_WIDTH_SUITE_NAME    "KRX ArrayKashidaWidth Suite"
#define ZM_KRX_ARRAY_KASHIDA_WIDTH_SUITE_VERSION 1

#define ZM_KRX_ARRAY_KASHIDAS_SUITE_NAME    "KRX ArrayKashidas Suite"
#define ZM_KRX_ARRAY_KASHIDAS_SUITE_VERSION 1

#define ZM_KRX_ARRAY_DIR_OVERRIDE_SUITE_NAME    "KRX ArrayDirOverride Suite"
#define ZM_KRX_ARRAY_DIR_OVERRIDE_SUITE_VERSION 1

#define ZM_KRX_ARRAY_DIGIT_SET_SUITE_NAME    "KRX ArrayDigitSet Suite"
#define ZM_KRX_ARRAY_DIGIT_SET_SUITE_VERSION 1

#define ZM_KRX_ARRAY_DIAC_V_POS_SUITE_NAME    "KRX ArrayDiacVPos Suite"
#define ZM_KRX_ARRAY_DIAC_V_POS_SUITE_VERSION 1


/* Every array suite has the same entries over its own item type. An array is a counted
   object: the one an entry hands out is a new reference, given back with Release. An item
   that is itself a reference is held by the array: Item, GetFirst and GetLast lend it for as
   long as the array lives, and Append takes a reference of its own. An index outside
   0..size-1, GetFirst or GetLast of an empty array, and a reference the host never gave out
   are ZM_ERR_BAD_ARGUMENT. */
#define KRX_ARRAY_SUITE(Name, ItemType)                                                    \
    typedef struct KRXArray##Name##Opaque *KRXArray##Name##Ref;                            \
    typedef struct KRXArray##Name##Suite {                                                 \
        /* 0: a new, empty array */                                                        \
        ZMErr(ZM_API *Create)(KRXArray##Name##Ref * array);                                \
        /* 1 */ ZMErr(ZM_API *AddRef)(KRXArray##Name##Ref array);                          \
        /* 2 */ ZMErr(ZM_API *Release)(KRXArray##Name##Ref array);                         \
        /* 3 */ ZMErr(ZM_API *GetSize)(KRXArray##Name##Ref array, int32_t * size);         \
        /* 4 */ ZMErr(ZM_API *GetFirst)(KRXArray##Name##Ref array, ItemType * item);       \
        /* 5 */ ZMErr(ZM_API *GetLast)(KRXArray##Name##Ref array, ItemType * item);        \
        /* 6 */ ZMErr(ZM_API *Item)(KRXArray##Name##Ref array, int32_t index, ItemType * item); \
        /* 7: adds the item at the end */                                                  \
        ZMErr(ZM_API *Append)(KRXArray##Name##Ref array, ItemType item);                   \
    } KRXArray##Name##Suite;

/* Enumerated text features are 32-bit codes. */
typedef int32_t KRXEnumValue;

KRX_ARRAY_SUITE(ApplicationPaintRef, KRXApplicationPaintRef)
KRX_ARRAY_SUITE(Real, double)
KRX_ARRAY_SUITE(Bool, uint8_t)
KRX_ARRAY_SUITE(Integer, int32_t)
KRX_ARRAY_SUITE(LineCapType, KRXEnumValue)
KRX_ARRAY_SUITE(FigureStyle, KRXEnumValue)
KRX_ARRAY_SUITE(LineJoinType, KRXEnumValue)
KRX_ARRAY_SUITE(WariChuJustification, KRXEnumValue)
KRX_ARRAY_SUITE(StyleRunAlignment, KRXEnumValue)
KRX_ARRAY_SUITE(AutoKernType, KRXEnumValue)
KRX_ARRAY_SUITE(BaselineDirection, KRXEnumValue)
KRX_ARRAY_SUITE(Language, KRXEnumValue)
KRX_ARRAY_SUITE(FontCapsOption, KRXEnumValue)
KRX_ARRAY_SUITE(FontBaselineOption, KRXEnumValue)
KRX_ARRAY_SUITE(FontOpenTypePositionOption, KRXEnumValue)
KRX_ARRAY_SUITE(UnderlinePosition, KRXEnumValue)
KRX_ARRAY_SUITE(StrikethroughPosition, KRXEnumValue)
KRX_ARRAY_SUITE(ParagraphJustification, KRXEnumValue)
KRX_ARRAY_SUITE(ArrayReal, KRXArrayRealRef)
KRX_ARRAY_SUITE(BurasagariType, KRXEnumValue)
KRX_ARRAY_SUITE(PreferredKinsokuOrder, KRXEnumValue)
KRX_ARRAY_SUITE(KinsokuRef, KRXKinsokuRef)
KRX_ARRAY_SUITE(MojiKumiRef, KRXMojiKumiRef)
KRX_ARRAY_SUITE(MojiKumiSetRef, KRXMojiKumiSetRef)
KRX_ARRAY_SUITE(TabStopsRef, KRXTabStopsRef)
KRX_ARRAY_SUITE(LeadingType, KRXEnumValue)
KRX_ARRAY_SUITE(FontRef, KRXFontRef)
KRX_ARRAY_SUITE(GlyphID, KRXGlyphID)
KRX_ARRAY_SUITE(RealPoint, ZMRealPoint)
KRX_ARRAY_SUITE(RealMatrix, KRXRealMatrix)
KRX_ARRAY_SUITE(ParagraphDirection, KRXEnumValue)
KRX_ARRAY_SUITE(JustificationMethod, KRXEnumValue)
KRX_ARRAY_SUITE(KashidaWidth, KRXEnumValue)
KRX_ARRAY_SUITE(Kashidas, KRXEnumValue)
KRX_ARRAY_SUITE(DirOverride, KRXEnumValue)
KRX_ARRAY_SUITE(DigitSet, KRXEnumValue)
KRX_ARRAY_SUITE(DiacVPos, KRXEnumValue)

#ifdef __cplusplus
}
#endif
