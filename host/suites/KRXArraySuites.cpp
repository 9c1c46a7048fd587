#include "suites/SuiteRegistrations.hpp"

#include "suites/KRXArraySuite.hpp"

#include <zelmora/KRXArraySuites.h>

namespace zm::host {

// One table per array suite, each an instance of the one array template over the suite's own
// item type; the name and version constants are paired so that a row cannot mix two suites.
#define ZM_ARRAY_SUITE(Name, SUITE, Item) \
    registry.Add(                         \
        SUITE##_NAME, SUITE##_VERSION,    \
        &KRXArraySuite<SUITE##_NAME, KRXArray##Name##Suite, KRXArray##Name##Ref, Item>::kTable)

void RegisterKRXArraySuites(SuiteRegistry& registry) {
    ZM_ARRAY_SUITE(ApplicationPaintRef, ZM_KRX_ARRAY_APPLICATION_PAINT_REF_SUITE,
                   KRXApplicationPaintRef);
    ZM_ARRAY_SUITE(Real, ZM_KRX_ARRAY_REAL_SUITE, double);
    ZM_ARRAY_SUITE(Bool, ZM_KRX_ARRAY_BOOL_SUITE, uint8_t);
    ZM_ARRAY_SUITE(Integer, ZM_KRX_ARRAY_INTEGER_SUITE, int32_t);
    ZM_ARRAY_SUITE(LineCapType, ZM_KRX_ARRAY_LINE_CAP_TYPE_SUITE, KRXEnumValue);
    ZM_ARRAY_SUITE(FigureStyle, ZM_KRX_ARRAY_FIGURE_STYLE_SUITE, KRXEnumValue);
    ZM_ARRAY_SUITE(LineJoinType, ZM_KRX_ARRAY_LINE_JOIN_TYPE_SUITE, KRXEnumValue);
    ZM_ARRAY_SUITE(WariChuJustification, ZM_KRX_ARRAY_WARI_CHU_JUSTIFICATION_SUITE, KRXEnumValue);
    ZM_ARRAY_SUITE(StyleRunAlignment, ZM_KRX_ARRAY_STYLE_RUN_ALIGNMENT_SUITE, KRXEnumValue);
    ZM_ARRAY_SUITE(AutoKernType, ZM_KRX_ARRAY_AUTO_KERN_TYPE_SUITE, KRXEnumValue);
    ZM_ARRAY_SUITE(BaselineDirection, ZM_KRX_ARRAY_BASELINE_DIRECTION_SUITE, KRXEnumValue);
    ZM_ARRAY_SUITE(Language, ZM_KRX_ARRAY_LANGUAGE_SUITE, KRXEnumValue);
    ZM_ARRAY_SUITE(FontCapsOption, ZM_KRX_ARRAY_FONT_CAPS_OPTION_SUITE, KRXEnumValue);
    ZM_ARRAY_SUITE(FontBaselineOption, ZM_KRX_ARRAY_FONT_BASELINE_OPTION_SUITE, KRXEnumValue);
    ZM_ARRAY_SUITE(FontOpenTypePositionOption, ZM_KRX_ARRAY_FONT_OPEN_TYPE_POSITION_OPTION_SUITE,
                   KRXEnumValue);
    ZM_ARRAY_SUITE(UnderlinePosition, ZM_KRX_ARRAY_UNDERLINE_POSITION_SUITE, KRXEnumValue);
    ZM_ARRAY_SUITE(StrikethroughPosition, ZM_KRX_ARRAY_STRIKETHROUGH_POSITION_SUITE, KRXEnumValue);
    ZM_ARRAY_SUITE(ParagraphJustification, ZM_KRX_ARRAY_PARAGRAPH_JUSTIFICATION_SUITE,
                   KRXEnumValue);
    ZM_ARRAY_SUITE(ArrayReal, ZM_KRX_ARRAY_ARRAY_REAL_SUITE, KRXArrayRealRef);
    ZM_ARRAY_SUITE(BurasagariType, ZM_KRX_ARRAY_BURASAGARI_TYPE_SUITE, KRXEnumValue);
    ZM_ARRAY_SUITE(PreferredKinsokuOrder, ZM_KRX_ARRAY_PREFERRED_KINSOKU_ORDER_SUITE, KRXEnumValue);
    ZM_ARRAY_SUITE(KinsokuRef, ZM_KRX_ARRAY_KINSOKU_REF_SUITE, KRXKinsokuRef);
    ZM_ARRAY_SUITE(MojiKumiRef, ZM_KRX_ARRAY_MOJI_KUMI_REF_SUITE, KRXMojiKumiRef);
    ZM_ARRAY_SUITE(MojiKumiSetRef, ZM_KRX_ARRAY_MOJI_KUMI_SET_REF_SUITE, KRXMojiKumiSetRef);
    ZM_ARRAY_SUITE(TabStopsRef, ZM_KRX_ARRAY_TAB_STOPS_REF_SUITE, KRXTabStopsRef);
    ZM_ARRAY_SUITE(LeadingType, ZM_KRX_ARRAY_LEADING_TYPE_SUITE, KRXEnumValue);
    ZM_ARRAY_SUITE(FontRef, ZM_KRX_ARRAY_FONT_REF_SUITE, KRXFontRef);
    ZM_ARRAY_SUITE(GlyphID, ZM_KRX_ARRAY_GLYPH_ID_SUITE, KRXGlyphID);
    ZM_ARRAY_SUITE(RealPoint, ZM_KRX_ARRAY_REAL_POINT_SUITE, ZMRealPoint);
    ZM_ARRAY_SUITE(RealMatrix, ZM_KRX_ARRAY_REAL_MATRIX_SUITE, KRXRealMatrix);
    ZM_ARRAY_SUITE(ParagraphDirection, ZM_KRX_ARRAY_PARAGRAPH_DIRECTION_SUITE, KRXEnumValue);
    ZM_ARRAY_SUITE(JustificationMethod, ZM_KRX_ARRAY_JUSTIFICATION_METHOD_SUITE, KRXEnumValue);
    ZM_ARRAY_SUITE(KashidaWidth, ZM_KRX_ARRAY_KASHIDA_WIDTH_SUITE, KRXEnumValue);
    ZM_ARRAY_SUITE(Kashidas, ZM_KRX_ARRAY_KASHIDAS_SUITE, KRXEnumValue);
    ZM_ARRAY_SUITE(DirOverride, ZM_KRX_ARRAY_DIR_OVERRIDE_SUITE, KRXEnumValue);
    ZM_ARRAY_SUITE(DigitSet, ZM_KRX_ARRAY_DIGIT_SET_SUITE, KRXEnumValue);
    ZM_ARRAY_SUITE(DiacVPos, ZM_KRX_ARRAY_DIAC_V_POS_SUITE, KRXEnumValue);
}

#undef ZM_ARRAY_SUITE

}  // namespace zm::host
