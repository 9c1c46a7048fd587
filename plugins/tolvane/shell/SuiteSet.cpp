#include "shell/SuiteSet.hpp"

namespace tolvane {

ZMBasicSuite* sBasicSuite = nullptr;

const PXMBasicSuite* sPxmBasicSuite = nullptr;
const ZMMenuSuite* sMenuSuite = nullptr;
const ZMNotifierSuite* sNotifierSuite = nullptr;
const ZMArtSuite* sArtSuite = nullptr;
const ZMArtboardSuite* sArtboardSuite = nullptr;
const ZMArtStyleSuite* sArtStyleSuite = nullptr;
const ZMArtStyleParserSuite* sArtStyleParserSuite = nullptr;
const ZMBlendStyleSuite* sBlendStyleSuite = nullptr;
const ZMBrushMgrSuite* sBrushMgrSuite = nullptr;
const ZMCustomColorSuite* sCustomColorSuite = nullptr;
const void* sCharacterEncodingSuite = nullptr;
const ZMDataFilterSuite* sDataFilterSuite = nullptr;
const void* sDevUtilsSuite = nullptr;
const ZMDictionarySuite* sDictionarySuite = nullptr;
const ZMDocumentSuite* sDocumentSuite = nullptr;
const ZMFilePathSuite* sFilePathSuite = nullptr;
const ZMFontSuite* sFontSuite = nullptr;
const ZMFontGlueSuite* sFontGlueSuite = nullptr;
const ZMGradientSuite* sGradientSuite = nullptr;
const ZMGraphSuite* sGraphSuite = nullptr;
const ZMLayerSuite* sLayerSuite = nullptr;
const ZMLayerListSuite* sLayerListSuite = nullptr;
const void* sLiveEffectSuite = nullptr;
const ZMMaskSuite* sMaskSuite = nullptr;
const ZMMatchingArtSuite* sMatchingArtSuite = nullptr;
const ZMMdMemorySuite* sMdMemorySuite = nullptr;
const ZMMeshSuite* sMeshSuite = nullptr;
const ZMColorConversionSuite* sOverrideColorConversionSuite = nullptr;
const ZMPathSuite* sPathSuite = nullptr;
const ZMPathStyleSuite* sPathStyleSuite = nullptr;
const ZMPatternSuite* sPatternSuite = nullptr;
const ZMQuorvelPIPSuite* sQuorvelPipSuite = nullptr;
const ZMPlacedSuite* sPlacedSuite = nullptr;
const ZMPluginGroupSuite* sPluginGroupSuite = nullptr;
const ZMPreferenceSuite* sPreferenceSuite = nullptr;
const ZMRasterSuite* sRasterSuite = nullptr;
const ZMSymbolSuite* sSymbolSuite = nullptr;
const ZMUserSuite* sUserSuite = nullptr;
const void* sWorkspaceSuite = nullptr;
const HVPluginsSuite* sHvPluginsSuite = nullptr;
const ZMLMBPluginSuite* sLmbPluginSuite = nullptr;
const ZMLMBUtilsSuite* sLmbUtilsSuite = nullptr;
const ZMUnicodeStringSuite* sUnicodeStringSuite = nullptr;
const ZMColorSpaceSuite* sColorSpaceSuite = nullptr;
const ZMStringFormatUtilsSuite* sStringFormatUtilsSuite = nullptr;
const void* sHvBlocksSuite = nullptr;
const ZMTextFrameSuite* sTextFrameSuite = nullptr;
const ZMFOConversionSuite* sFoConversionSuite = nullptr;
const ZMContextSuite* sContextSuite = nullptr;
const ZMLiveCornersSuite* sLiveCornersSuite = nullptr;
const ZMRealMathSuite* sRealMathSuite = nullptr;
const void* sCountedObjectSuite = nullptr;
const ZMKRXPaintSuite* sZmkrxPaintSuite = nullptr;
const KRXApplicationPaintSuite* sKrxApplicationPaintSuite = nullptr;
const void* sKrxCompFontSuite = nullptr;
const void* sKrxCompFontClassSuite = nullptr;
const void* sKrxCompFontClassSetSuite = nullptr;
const void* sKrxCompFontComponentSuite = nullptr;
const void* sKrxCompFontSetSuite = nullptr;
const void* sKrxGlyphRunSuite = nullptr;
const void* sKrxGlyphRunsIteratorSuite = nullptr;
const void* sKrxMojiKumiSuite = nullptr;
const void* sKrxMojiKumiSetSuite = nullptr;
const KRXTextFrameSuite* sKrxTextFrameSuite = nullptr;
const void* sKrxTextFramesIteratorSuite = nullptr;
const void* sKrxTextLineSuite = nullptr;
const void* sKrxTextLinesIteratorSuite = nullptr;
const void* sKrxTextResourcesSuite = nullptr;
const void* sKrxApplicationTextResourcesSuite = nullptr;
const KRXDocumentTextResourcesSuite* sKrxDocumentTextResourcesSuite = nullptr;
const void* sKrxVersionInfoSuite = nullptr;
const KRXArrayApplicationPaintRefSuite* sKrxArrayApplicationPaintRefSuite = nullptr;
const KRXArrayRealSuite* sKrxArrayRealSuite = nullptr;
const void* sKrxArrayBoolSuite = nullptr;
const void* sKrxArrayIntegerSuite = nullptr;
const void* sKrxArrayLineCapTypeSuite = nullptr;
const void* sKrxArrayFigureStyleSuite = nullptr;
const void* sKrxArrayLineJoinTypeSuite = nullptr;
const void* sKrxArrayWariChuJustificationSuite = nullptr;
const void* sKrxArrayStyleRunAlignmentSuite = nullptr;
const void* sKrxArrayAutoKernTypeSuite = nullptr;
const void* sKrxArrayBaselineDirectionSuite = nullptr;
const void* sKrxArrayLanguageSuite = nullptr;
const void* sKrxArrayFontCapsOptionSuite = nullptr;
const void* sKrxArrayFontBaselineOptionSuite = nullptr;
const void* sKrxArrayFontOpenTypePositionOptionSuite = nullptr;
const void* sKrxArrayUnderlinePositionSuite = nullptr;
const void* sKrxArrayStrikethroughPositionSuite = nullptr;
const void* sKrxArrayParagraphJustificationSuite = nullptr;
const void* sKrxArrayArrayRealSuite = nullptr;
const void* sKrxArrayBurasagariTypeSuite = nullptr;
const void* sKrxArrayPreferredKinsokuOrderSuite = nullptr;
const void* sKrxArrayKinsokuRefSuite = nullptr;
const void* sKrxArrayMojiKumiRefSuite = nullptr;
const void* sKrxArrayMojiKumiSetRefSuite = nullptr;
const void* sKrxArrayTabStopsRefSuite = nullptr;
const void* sKrxArrayLeadingTypeSuite = nullptr;
const KRXArrayFontRefSuite* sKrxArrayFontRefSuite = nullptr;
const void* sKrxArrayGlyphIdSuite = nullptr;
const void* sKrxArrayRealPointSuite = nullptr;
const void* sKrxArrayRealMatrixSuite = nullptr;
const void* sKrxArrayParagraphDirectionSuite = nullptr;
const void* sKrxArrayJustificationMethodSuite = nullptr;
const void* sKrxArrayKashidaWidthSuite = nullptr;
const void* sKrxArrayKashidasSuite = nullptr;
const void* sKrxArrayDirOverrideSuite = nullptr;
const void* sKrxArrayDigitSetSuite = nullptr;
const void* sKrxArrayDiacVPosSuite = nullptr;
const void* sKrxCharFeaturesSuite = nullptr;
const KRXCharInspectorSuite* sKrxCharInspectorSuite = nullptr;
const void* sKrxCharStyleSuite = nullptr;
const void* sKrxCharStylesSuite = nullptr;
const void* sKrxCharStylesIteratorSuite = nullptr;
const void* sKrxFindSuite = nullptr;
const KRXFontSuite* sKrxFontSuite = nullptr;
const void* sKrxGlyphSuite = nullptr;
const void* sKrxGlyphsSuite = nullptr;
const void* sKrxGlyphsIteratorSuite = nullptr;
const void* sKrxKinsokuSuite = nullptr;
const void* sKrxKinsokuSetSuite = nullptr;
const void* sKrxParaFeaturesSuite = nullptr;
const void* sKrxParagraphSuite = nullptr;
const void* sKrxParagraphsIteratorSuite = nullptr;
const void* sKrxParaInspectorSuite = nullptr;
const void* sKrxParaStyleSuite = nullptr;
const void* sKrxParaStylesSuite = nullptr;
const void* sKrxParaStylesIteratorSuite = nullptr;
const void* sKrxSpellSuite = nullptr;
const void* sKrxStoriesSuite = nullptr;
const void* sKrxStorySuite = nullptr;
const void* sKrxTabStopSuite = nullptr;
const void* sKrxTabStopsSuite = nullptr;
const void* sKrxTabStopsIteratorSuite = nullptr;
const KRXTextRangeSuite* sKrxTextRangeSuite = nullptr;
const void* sKrxTextRangesSuite = nullptr;
const void* sKrxTextRangesIteratorSuite = nullptr;
const void* sKrxTextRunsIteratorSuite = nullptr;
const void* sKrxWordsIteratorSuite = nullptr;

namespace {

// The framework writes each table through the generic pointer type of its declaration.
template <typename Table>
const void** Target(const Table** pointer) {
    return reinterpret_cast<const void**>(pointer);
}

}  // namespace

// The first three rows are those the framework itself needs for the menu and notifier
// declarations, hence their own kind.
const ZMSuiteDeclaration kRequiredSuites[] = {
    {ZM_SUITE_KIND_FRAMEWORK, ZM_PXM_BASIC_SUITE_NAME, ZM_PXM_BASIC_SUITE_VERSION, Target(&sPxmBasicSuite)},
    {ZM_SUITE_KIND_FRAMEWORK, ZM_MENU_SUITE_NAME, ZM_MENU_SUITE_VERSION, Target(&sMenuSuite)},
    {ZM_SUITE_KIND_FRAMEWORK, ZM_NOTIFIER_SUITE_NAME, ZM_NOTIFIER_SUITE_VERSION, Target(&sNotifierSuite)},
    {ZM_SUITE_KIND_REQUIRED, ZM_ART_SUITE_NAME, ZM_ART_SUITE_VERSION, Target(&sArtSuite)},
    {ZM_SUITE_KIND_REQUIRED, ZM_ARTBOARD_SUITE_NAME, ZM_ARTBOARD_SUITE_VERSION, Target(&sArtboardSuite)},
    {ZM_SUITE_KIND_REQUIRED, ZM_ART_STYLE_SUITE_NAME, ZM_ART_STYLE_SUITE_VERSION, Target(&sArtStyleSuite)},
    {ZM_SUITE_KIND_REQUIRED, ZM_ART_STYLE_PARSER_SUITE_NAME, ZM_ART_STYLE_PARSER_SUITE_VERSION, Target(&sArtStyleParserSuite)},
    {ZM_SUITE_KIND_REQUIRED, ZM_BLEND_STYLE_SUITE_NAME, ZM_BLEND_STYLE_SUITE_VERSION, Target(&sBlendStyleSuite)},
    {ZM_SUITE_KIND_REQUIRED, ZM_BRUSH_MGR_SUITE_NAME, ZM_BRUSH_MGR_SUITE_VERSION, Target(&sBrushMgrSuite)},
    {ZM_SUITE_KIND_REQUIRED, ZM_CUSTOM_COLOR_SUITE_NAME, ZM_CUSTOM_COLOR_SUITE_VERSION, Target(&sCustomColorSuite)},
    {ZM_SUITE_KIND_REQUIRED, ZM_CHARACTER_ENCODING_SUITE_NAME, ZM_CHARACTER_ENCODING_SUITE_VERSION, &sCharacterEncodingSuite},
    {ZM_SUITE_KIND_REQUIRED, ZM_DATA_FILTER_SUITE_NAME, ZM_DATA_FILTER_SUITE_VERSION, Target(&sDataFilterSuite)},
    {ZM_SUITE_KIND_REQUIRED, ZM_DEV_UTILS_SUITE_NAME, ZM_DEV_UTILS_SUITE_VERSION, &sDevUtilsSuite},
    {ZM_SUITE_KIND_REQUIRED, ZM_DICTIONARY_SUITE_NAME, ZM_DICTIONARY_SUITE_VERSION, Target(&sDictionarySuite)},
    {ZM_SUITE_KIND_REQUIRED, ZM_DOCUMENT_SUITE_NAME, ZM_DOCUMENT_SUITE_VERSION, Target(&sDocumentSuite)},
    {ZM_SUITE_KIND_REQUIRED, ZM_FILE_PATH_SUITE_NAME, ZM_FILE_PATH_SUITE_VERSION, Target(&sFilePathSuite)},
    {ZM_SUITE_KIND_REQUIRED, ZM_FONT_SUITE_NAME, ZM_FONT_SUITE_VERSION, Target(&sFontSuite)},
    {ZM_SUITE_KIND_REQUIRED, ZM_FONT_GLUE_SUITE_NAME, ZM_FONT_GLUE_SUITE_VERSION, Target(&sFontGlueSuite)},
    {ZM_SUITE_KIND_REQUIRED, ZM_GRADIENT_SUITE_NAME, ZM_GRADIENT_SUITE_VERSION, Target(&sGradientSuite)},
    {ZM_SUITE_KIND_REQUIRED, ZM_GRAPH_SUITE_NAME, ZM_GRAPH_SUITE_VERSION, Target(&sGraphSuite)},
    {ZM_SUITE_KIND_REQUIRED, ZM_LAYER_SUITE_NAME, ZM_LAYER_SUITE_VERSION, Target(&sLayerSuite)},
    {ZM_SUITE_KIND_REQUIRED, ZM_LAYER_LIST_SUITE_NAME, ZM_LAYER_LIST_SUITE_VERSION, Target(&sLayerListSuite)},
    {ZM_SUITE_KIND_REQUIRED, ZM_LIVE_EFFECT_SUITE_NAME, ZM_LIVE_EFFECT_SUITE_VERSION, &sLiveEffectSuite},
    {ZM_SUITE_KIND_REQUIRED, ZM_MASK_SUITE_NAME, ZM_MASK_SUITE_VERSION, Target(&sMaskSuite)},
    {ZM_SUITE_KIND_REQUIRED, ZM_MATCHING_ART_SUITE_NAME, ZM_MATCHING_ART_SUITE_VERSION, Target(&sMatchingArtSuite)},
    {ZM_SUITE_KIND_REQUIRED, ZM_MD_MEMORY_SUITE_NAME, ZM_MD_MEMORY_SUITE_VERSION, Target(&sMdMemorySuite)},
    {ZM_SUITE_KIND_REQUIRED, ZM_MESH_SUITE_NAME, ZM_MESH_SUITE_VERSION, Target(&sMeshSuite)},
    {ZM_SUITE_KIND_REQUIRED, ZM_OVERRIDE_COLOR_CONVERSION_SUITE_NAME, ZM_OVERRIDE_COLOR_CONVERSION_SUITE_VERSION, Target(&sOverrideColorConversionSuite)},
    {ZM_SUITE_KIND_REQUIRED, ZM_PATH_SUITE_NAME, ZM_PATH_SUITE_VERSION, Target(&sPathSuite)},
    {ZM_SUITE_KIND_REQUIRED, ZM_PATH_STYLE_SUITE_NAME, ZM_PATH_STYLE_SUITE_VERSION, Target(&sPathStyleSuite)},
    {ZM_SUITE_KIND_REQUIRED, ZM_PATTERN_SUITE_NAME, ZM_PATTERN_SUITE_VERSION, Target(&sPatternSuite)},
    {ZM_SUITE_KIND_REQUIRED, ZM_QUORVEL_PIP_SUITE_NAME, ZM_QUORVEL_PIP_SUITE_VERSION, Target(&sQuorvelPipSuite)},
    {ZM_SUITE_KIND_REQUIRED, ZM_PLACED_SUITE_NAME, ZM_PLACED_SUITE_VERSION, Target(&sPlacedSuite)},
    {ZM_SUITE_KIND_REQUIRED, ZM_PLUGIN_GROUP_SUITE_NAME, ZM_PLUGIN_GROUP_SUITE_VERSION, Target(&sPluginGroupSuite)},
    {ZM_SUITE_KIND_REQUIRED, ZM_PREFERENCE_SUITE_NAME, ZM_PREFERENCE_SUITE_VERSION, Target(&sPreferenceSuite)},
    {ZM_SUITE_KIND_REQUIRED, ZM_RASTER_SUITE_NAME, ZM_RASTER_SUITE_VERSION, Target(&sRasterSuite)},
    {ZM_SUITE_KIND_REQUIRED, ZM_SYMBOL_SUITE_NAME, ZM_SYMBOL_SUITE_VERSION, Target(&sSymbolSuite)},
    {ZM_SUITE_KIND_REQUIRED, ZM_USER_SUITE_NAME, ZM_USER_SUITE_VERSION, Target(&sUserSuite)},
    {ZM_SUITE_KIND_REQUIRED, ZM_WORKSPACE_SUITE_NAME, ZM_WORKSPACE_SUITE_VERSION, &sWorkspaceSuite},
    {ZM_SUITE_KIND_REQUIRED, ZM_HV_PLUGINS_SUITE_NAME, ZM_HV_PLUGINS_SUITE_VERSION, Target(&sHvPluginsSuite)},
    {ZM_SUITE_KIND_REQUIRED, ZM_LMB_PLUGIN_SUITE_NAME, ZM_LMB_PLUGIN_SUITE_VERSION, Target(&sLmbPluginSuite)},
    {ZM_SUITE_KIND_REQUIRED, ZM_LMB_UTILS_SUITE_NAME, ZM_LMB_UTILS_SUITE_VERSION, Target(&sLmbUtilsSuite)},
    {ZM_SUITE_KIND_REQUIRED, ZM_UNICODE_STRING_SUITE_NAME, ZM_UNICODE_STRING_SUITE_VERSION, Target(&sUnicodeStringSuite)},
    {ZM_SUITE_KIND_REQUIRED, ZM_COLOR_SPACE_SUITE_NAME, ZM_COLOR_SPACE_SUITE_VERSION, Target(&sColorSpaceSuite)},
    {ZM_SUITE_KIND_REQUIRED, ZM_STRING_FORMAT_UTILS_SUITE_NAME, ZM_STRING_FORMAT_UTILS_SUITE_VERSION, Target(&sStringFormatUtilsSuite)},
    {ZM_SUITE_KIND_REQUIRED, ZM_HV_BLOCKS_SUITE_NAME, ZM_HV_BLOCKS_SUITE_VERSION, &sHvBlocksSuite},
    {ZM_SUITE_KIND_REQUIRED, ZM_TEXT_FRAME_SUITE_NAME, ZM_TEXT_FRAME_SUITE_VERSION, Target(&sTextFrameSuite)},
    {ZM_SUITE_KIND_REQUIRED, ZM_FO_CONVERSION_SUITE_NAME, ZM_FO_CONVERSION_SUITE_VERSION, Target(&sFoConversionSuite)},
    {ZM_SUITE_KIND_REQUIRED, ZM_CONTEXT_SUITE_NAME, ZM_CONTEXT_SUITE_VERSION, Target(&sContextSuite)},
    {ZM_SUITE_KIND_REQUIRED, ZM_LIVE_CORNERS_SUITE_NAME, ZM_LIVE_CORNERS_SUITE_VERSION, Target(&sLiveCornersSuite)},
    {ZM_SUITE_KIND_REQUIRED, ZM_REAL_MATH_SUITE_NAME, ZM_REAL_MATH_SUITE_VERSION, Target(&sRealMathSuite)},
    {ZM_SUITE_KIND_REQUIRED, ZM_COUNTED_OBJECT_SUITE_NAME, ZM_COUNTED_OBJECT_SUITE_VERSION, &sCountedObjectSuite},
    {ZM_SUITE_KIND_REQUIRED, ZM_ZMKRX_PAINT_SUITE_NAME, ZM_ZMKRX_PAINT_SUITE_VERSION, Target(&sZmkrxPaintSuite)},
    {ZM_SUITE_KIND_REQUIRED, ZM_KRX_APPLICATION_PAINT_SUITE_NAME, ZM_KRX_APPLICATION_PAINT_SUITE_VERSION, Target(&sKrxApplicationPaintSuite)},
    {ZM_SUITE_KIND_REQUIRED, ZM_KRX_COMP_FONT_SUITE_NAME, ZM_KRX_COMP_FONT_SUITE_VERSION, &sKrxCompFontSuite},
    {ZM_SUITE_KIND_REQUIRED, ZM_KRX_COMP_FONT_CLASS_SUITE_NAME, ZM_KRX_COMP_FONT_CLASS_SUITE_VERSION, &sKrxCompFontClassSuite},
    {ZM_SUITE_KIND_REQUIRED, ZM_KRX_COMP_FONT_CLASS_SET_SUITE_NAME, ZM_KRX_COMP_FONT_CLASS_SET_SUITE_VERSION, &sKrxCompFontClassSetSuite},
    {ZM_SUITE_KIND_REQUIRED, ZM_KRX_COMP_FONT_COMPONENT_SUITE_NAME, ZM_KRX_COMP_FONT_COMPONENT_SUITE_VERSION, &sKrxCompFontComponentSuite},
    {ZM_SUITE_KIND_REQUIRED, ZM_KRX_COMP_FONT_SET_SUITE_NAME, ZM_KRX_COMP_FONT_SET_SUITE_VERSION, &sKrxCompFontSetSuite},
    {ZM_SUITE_KIND_REQUIRED, ZM_KRX_GLYPH_RUN_SUITE_NAME, ZM_KRX_GLYPH_RUN_SUITE_VERSION, &sKrxGlyphRunSuite},
    {ZM_SUITE_KIND_REQUIRED, ZM_KRX_GLYPH_RUNS_ITERATOR_SUITE_NAME, ZM_KRX_GLYPH_RUNS_ITERATOR_SUITE_VERSION, &sKrxGlyphRunsIteratorSuite},
    {ZM_SUITE_KIND_REQUIRED, ZM_KRX_MOJI_KUMI_SUITE_NAME, ZM_KRX_MOJI_KUMI_SUITE_VERSION, &sKrxMojiKumiSuite},
    {ZM_SUITE_KIND_REQUIRED, ZM_KRX_MOJI_KUMI_SET_SUITE_NAME, ZM_KRX_MOJI_KUMI_SET_SUITE_VERSION, &sKrxMojiKumiSetSuite},
    {ZM_SUITE_KIND_REQUIRED, ZM_KRX_TEXT_FRAME_SUITE_NAME, ZM_KRX_TEXT_FRAME_SUITE_VERSION, Target(&sKrxTextFrameSuite)},
    {ZM_SUITE_KIND_REQUIRED, ZM_KRX_TEXT_FRAMES_ITERATOR_SUITE_NAME, ZM_KRX_TEXT_FRAMES_ITERATOR_SUITE_VERSION, &sKrxTextFramesIteratorSuite},
    {ZM_SUITE_KIND_REQUIRED, ZM_KRX_TEXT_LINE_SUITE_NAME, ZM_KRX_TEXT_LINE_SUITE_VERSION, &sKrxTextLineSuite},
    {ZM_SUITE_KIND_REQUIRED, ZM_KRX_TEXT_LINES_ITERATOR_SUITE_NAME, ZM_KRX_TEXT_LINES_ITERATOR_SUITE_VERSION, &sKrxTextLinesIteratorSuite},
    {ZM_SUITE_KIND_REQUIRED, ZM_KRX_TEXT_RESOURCES_SUITE_NAME, ZM_KRX_TEXT_RESOURCES_SUITE_VERSION, &sKrxTextResourcesSuite},
    {ZM_SUITE_KIND_REQUIRED, ZM_KRX_APPLICATION_TEXT_RESOURCES_SUITE_NAME, ZM_KRX_APPLICATION_TEXT_RESOURCES_SUITE_VERSION, &sKrxApplicationTextResourcesSuite},
    {ZM_SUITE_KIND_REQUIRED, ZM_KRX_DOCUMENT_TEXT_RESOURCES_SUITE_NAME, ZM_KRX_DOCUMENT_TEXT_RESOURCES_SUITE_VERSION, Target(&sKrxDocumentTextResourcesSuite)},
    {ZM_SUITE_KIND_REQUIRED, ZM_KRX_VERSION_INFO_SUITE_NAME, ZM_KRX_VERSION_INFO_SUITE_VERSION, &sKrxVersionInfoSuite},
    {ZM_SUITE_KIND_REQUIRED, ZM_KRX_ARRAY_APPLICATION_PAINT_REF_SUITE_NAME, ZM_KRX_ARRAY_APPLICATION_PAINT_REF_SUITE_VERSION, Target(&sKrxArrayApplicationPaintRefSuite)},
    {ZM_SUITE_KIND_REQUIRED, ZM_KRX_ARRAY_REAL_SUITE_NAME, ZM_KRX_ARRAY_REAL_SUITE_VERSION, Target(&sKrxArrayRealSuite)},
    {ZM_SUITE_KIND_REQUIRED, ZM_KRX_ARRAY_BOOL_SUITE_NAME, ZM_KRX_ARRAY_BOOL_SUITE_VERSION, &sKrxArrayBoolSuite},
    {ZM_SUITE_KIND_REQUIRED, ZM_KRX_ARRAY_INTEGER_SUITE_NAME, ZM_KRX_ARRAY_INTEGER_SUITE_VERSION, &sKrxArrayIntegerSuite},
    {ZM_SUITE_KIND_REQUIRED, ZM_KRX_ARRAY_LINE_CAP_TYPE_SUITE_NAME, ZM_KRX_ARRAY_LINE_CAP_TYPE_SUITE_VERSION, &sKrxArrayLineCapTypeSuite},
    {ZM_SUITE_KIND_REQUIRED, ZM_KRX_ARRAY_FIGURE_STYLE_SUITE_NAME, ZM_KRX_ARRAY_FIGURE_STYLE_SUITE_VERSION, &sKrxArrayFigureStyleSuite},
    {ZM_SUITE_KIND_REQUIRED, ZM_KRX_ARRAY_LINE_JOIN_TYPE_SUITE_NAME, ZM_KRX_ARRAY_LINE_JOIN_TYPE_SUITE_VERSION, &sKrxArrayLineJoinTypeSuite},
    {ZM_SUITE_KIND_REQUIRED, ZM_KRX_ARRAY_WARI_CHU_JUSTIFICATION_SUITE_NAME, ZM_KRX_ARRAY_WARI_CHU_JUSTIFICATION_SUITE_VERSION, &sKrxArrayWariChuJustificationSuite},
    {ZM_SUITE_KIND_REQUIRED, ZM_KRX_ARRAY_STYLE_RUN_ALIGNMENT_SUITE_NAME, ZM_KRX_ARRAY_STYLE_RUN_ALIGNMENT_SUITE_VERSION, &sKrxArrayStyleRunAlignmentSuite},
    {ZM_SUITE_KIND_REQUIRED, ZM_KRX_ARRAY_AUTO_KERN_TYPE_SUITE_NAME, ZM_KRX_ARRAY_AUTO_KERN_TYPE_SUITE_VERSION, &sKrxArrayAutoKernTypeSuite},
    {ZM_SUITE_KIND_REQUIRED, ZM_KRX_ARRAY_BASELINE_DIRECTION_SUITE_NAME, ZM_KRX_ARRAY_BASELINE_DIRECTION_SUITE_VERSION, &sKrxArrayBaselineDirectionSuite},
    {ZM_SUITE_KIND_REQUIRED, ZM_KRX_ARRAY_LANGUAGE_SUITE_NAME, ZM_KRX_ARRAY_LANGUAGE_SUITE_VERSION, &sKrxArrayLanguageSuite},
    {ZM_SUITE_KIND_REQUIRED, ZM_KRX_ARRAY_FONT_CAPS_OPTION_SUITE_NAME, ZM_KRX_ARRAY_FONT_CAPS_OPTION_SUITE_VERSION, &sKrxArrayFontCapsOptionSuite},
    {ZM_SUITE_KIND_REQUIRED, ZM_KRX_ARRAY_FONT_BASELINE_OPTION_SUITE_NAME, ZM_KRX_ARRAY_FONT_BASELINE_OPTION_SUITE_VERSION, &sKrxArrayFontBaselineOptionSuite},
    {ZM_SUITE_KIND_REQUIRED, ZM_KRX_ARRAY_FONT_OPEN_TYPE_POSITION_OPTION_SUITE_NAME, ZM_KRX_ARRAY_FONT_OPEN_TYPE_POSITION_OPTION_SUITE_VERSION, &sKrxArrayFontOpenTypePositionOptionSuite},
    {ZM_SUITE_KIND_REQUIRED, ZM_KRX_ARRAY_UNDERLINE_POSITION_SUITE_NAME, ZM_KRX_ARRAY_UNDERLINE_POSITION_SUITE_VERSION, &sKrxArrayUnderlinePositionSuite},
    {ZM_SUITE_KIND_REQUIRED, ZM_KRX_ARRAY_STRIKETHROUGH_POSITION_SUITE_NAME, ZM_KRX_ARRAY_STRIKETHROUGH_POSITION_SUITE_VERSION, &sKrxArrayStrikethroughPositionSuite},
    {ZM_SUITE_KIND_REQUIRED, ZM_KRX_ARRAY_PARAGRAPH_JUSTIFICATION_SUITE_NAME, ZM_KRX_ARRAY_PARAGRAPH_JUSTIFICATION_SUITE_VERSION, &sKrxArrayParagraphJustificationSuite},
    {ZM_SUITE_KIND_REQUIRED, ZM_KRX_ARRAY_ARRAY_REAL_SUITE_NAME, ZM_KRX_ARRAY_ARRAY_REAL_SUITE_VERSION, &sKrxArrayArrayRealSuite},
    {ZM_SUITE_KIND_REQUIRED, ZM_KRX_ARRAY_BURASAGARI_TYPE_SUITE_NAME, ZM_KRX_ARRAY_BURASAGARI_TYPE_SUITE_VERSION, &sKrxArrayBurasagariTypeSuite},
    {ZM_SUITE_KIND_REQUIRED, ZM_KRX_ARRAY_PREFERRED_KINSOKU_ORDER_SUITE_NAME, ZM_KRX_ARRAY_PREFERRED_KINSOKU_ORDER_SUITE_VERSION, &sKrxArrayPreferredKinsokuOrderSuite},
    {ZM_SUITE_KIND_REQUIRED, ZM_KRX_ARRAY_KINSOKU_REF_SUITE_NAME, ZM_KRX_ARRAY_KINSOKU_REF_SUITE_VERSION, &sKrxArrayKinsokuRefSuite},
    {ZM_SUITE_KIND_REQUIRED, ZM_KRX_ARRAY_MOJI_KUMI_REF_SUITE_NAME, ZM_KRX_ARRAY_MOJI_KUMI_REF_SUITE_VERSION, &sKrxArrayMojiKumiRefSuite},
    {ZM_SUITE_KIND_REQUIRED, ZM_KRX_ARRAY_MOJI_KUMI_SET_REF_SUITE_NAME, ZM_KRX_ARRAY_MOJI_KUMI_SET_REF_SUITE_VERSION, &sKrxArrayMojiKumiSetRefSuite},
    {ZM_SUITE_KIND_REQUIRED, ZM_KRX_ARRAY_TAB_STOPS_REF_SUITE_NAME, ZM_KRX_ARRAY_TAB_STOPS_REF_SUITE_VERSION, &sKrxArrayTabStopsRefSuite},
    {ZM_SUITE_KIND_REQUIRED, ZM_KRX_ARRAY_LEADING_TYPE_SUITE_NAME, ZM_KRX_ARRAY_LEADING_TYPE_SUITE_VERSION, &sKrxArrayLeadingTypeSuite},
    {ZM_SUITE_KIND_REQUIRED, ZM_KRX_ARRAY_FONT_REF_SUITE_NAME, ZM_KRX_ARRAY_FONT_REF_SUITE_VERSION, Target(&sKrxArrayFontRefSuite)},
    {ZM_SUITE_KIND_REQUIRED, ZM_KRX_ARRAY_GLYPH_ID_SUITE_NAME, ZM_KRX_ARRAY_GLYPH_ID_SUITE_VERSION, &sKrxArrayGlyphIdSuite},
    {ZM_SUITE_KIND_REQUIRED, ZM_KRX_ARRAY_REAL_POINT_SUITE_NAME, ZM_KRX_ARRAY_REAL_POINT_SUITE_VERSION, &sKrxArrayRealPointSuite},
    {ZM_SUITE_KIND_REQUIRED, ZM_KRX_ARRAY_REAL_MATRIX_SUITE_NAME, ZM_KRX_ARRAY_REAL_MATRIX_SUITE_VERSION, &sKrxArrayRealMatrixSuite},
    {ZM_SUITE_KIND_REQUIRED, ZM_KRX_ARRAY_PARAGRAPH_DIRECTION_SUITE_NAME, ZM_KRX_ARRAY_PARAGRAPH_DIRECTION_SUITE_VERSION, &sKrxArrayParagraphDirectionSuite},
    {ZM_SUITE_KIND_REQUIRED, ZM_KRX_ARRAY_JUSTIFICATION_METHOD_SUITE_NAME, ZM_KRX_ARRAY_JUSTIFICATION_METHOD_SUITE_VERSION, &sKrxArrayJustificationMethodSuite},
    {ZM_SUITE_KIND_REQUIRED, ZM_KRX_ARRAY_KASHIDA_WIDTH_SUITE_NAME, ZM_KRX_ARRAY_KASHIDA_WIDTH_SUITE_VERSION, &sKrxArrayKashidaWidthSuite},
    {ZM_SUITE_KIND_REQUIRED, ZM_KRX_ARRAY_KASHIDAS_SUITE_NAME, ZM_KRX_ARRAY_KASHIDAS_SUITE_VERSION, &sKrxArrayKashidasSuite},
    {ZM_SUITE_KIND_REQUIRED, ZM_KRX_ARRAY_DIR_OVERRIDE_SUITE_NAME, ZM_KRX_ARRAY_DIR_OVERRIDE_SUITE_VERSION, &sKrxArrayDirOverrideSuite},
    {ZM_SUITE_KIND_REQUIRED, ZM_KRX_ARRAY_DIGIT_SET_SUITE_NAME, ZM_KRX_ARRAY_DIGIT_SET_SUITE_VERSION, &sKrxArrayDigitSetSuite},
    {ZM_SUITE_KIND_REQUIRED, ZM_KRX_ARRAY_DIAC_V_POS_SUITE_NAME, ZM_KRX_ARRAY_DIAC_V_POS_SUITE_VERSION, &sKrxArrayDiacVPosSuite},
    {ZM_SUITE_KIND_REQUIRED, ZM_KRX_CHAR_FEATURES_SUITE_NAME, ZM_KRX_CHAR_FEATURES_SUITE_VERSION, &sKrxCharFeaturesSuite},
    {ZM_SUITE_KIND_REQUIRED, ZM_KRX_CHAR_INSPECTOR_SUITE_NAME, ZM_KRX_CHAR_INSPECTOR_SUITE_VERSION, Target(&sKrxCharInspectorSuite)},
    {ZM_SUITE_KIND_REQUIRED, ZM_KRX_CHAR_STYLE_SUITE_NAME, ZM_KRX_CHAR_STYLE_SUITE_VERSION, &sKrxCharStyleSuite},
    {ZM_SUITE_KIND_REQUIRED, ZM_KRX_CHAR_STYLES_SUITE_NAME, ZM_KRX_CHAR_STYLES_SUITE_VERSION, &sKrxCharStylesSuite},
    {ZM_SUITE_KIND_REQUIRED, ZM_KRX_CHAR_STYLES_ITERATOR_SUITE_NAME, ZM_KRX_CHAR_STYLES_ITERATOR_SUITE_VERSION, &sKrxCharStylesIteratorSuite},
    {ZM_SUITE_KIND_REQUIRED, ZM_KRX_FIND_SUITE_NAME, ZM_KRX_FIND_SUITE_VERSION, &sKrxFindSuite},
    {ZM_SUITE_KIND_REQUIRED, ZM_KRX_FONT_SUITE_NAME, ZM_KRX_FONT_SUITE_VERSION, Target(&sKrxFontSuite)},
    {ZM_SUITE_KIND_REQUIRED, ZM_KRX_GLYPH_SUITE_NAME, ZM_KRX_GLYPH_SUITE_VERSION, &sKrxGlyphSuite},
    {ZM_SUITE_KIND_REQUIRED, ZM_KRX_GLYPHS_SUITE_NAME, ZM_KRX_GLYPHS_SUITE_VERSION, &sKrxGlyphsSuite},
    {ZM_SUITE_KIND_REQUIRED, ZM_KRX_GLYPHS_ITERATOR_SUITE_NAME, ZM_KRX_GLYPHS_ITERATOR_SUITE_VERSION, &sKrxGlyphsIteratorSuite},
    {ZM_SUITE_KIND_REQUIRED, ZM_KRX_KINSOKU_SUITE_NAME, ZM_KRX_KINSOKU_SUITE_VERSION, &sKrxKinsokuSuite},
    {ZM_SUITE_KIND_REQUIRED, ZM_KRX_KINSOKU_SET_SUITE_NAME, ZM_KRX_KINSOKU_SET_SUITE_VERSION, &sKrxKinsokuSetSuite},
    {ZM_SUITE_KIND_REQUIRED, ZM_KRX_PARA_FEATURES_SUITE_NAME, ZM_KRX_PARA_FEATURES_SUITE_VERSION, &sKrxParaFeaturesSuite},
    {ZM_SUITE_KIND_REQUIRED, ZM_KRX_PARAGRAPH_SUITE_NAME, ZM_KRX_PARAGRAPH_SUITE_VERSION, &sKrxParagraphSuite},
    {ZM_SUITE_KIND_REQUIRED, ZM_KRX_PARAGRAPHS_ITERATOR_SUITE_NAME, ZM_KRX_PARAGRAPHS_ITERATOR_SUITE_VERSION, &sKrxParagraphsIteratorSuite},
    {ZM_SUITE_KIND_REQUIRED, ZM_KRX_PARA_INSPECTOR_SUITE_NAME, ZM_KRX_PARA_INSPECTOR_SUITE_VERSION, &sKrxParaInspectorSuite},
    {ZM_SUITE_KIND_REQUIRED, ZM_KRX_PARA_STYLE_SUITE_NAME, ZM_KRX_PARA_STYLE_SUITE_VERSION, &sKrxParaStyleSuite},
    {ZM_SUITE_KIND_REQUIRED, ZM_KRX_PARA_STYLES_SUITE_NAME, ZM_KRX_PARA_STYLES_SUITE_VERSION, &sKrxParaStylesSuite},
    {ZM_SUITE_KIND_REQUIRED, ZM_KRX_PARA_STYLES_ITERATOR_SUITE_NAME, ZM_KRX_PARA_STYLES_ITERATOR_SUITE_VERSION, &sKrxParaStylesIteratorSuite},
    {ZM_SUITE_KIND_REQUIRED, ZM_KRX_SPELL_SUITE_NAME, ZM_KRX_SPELL_SUITE_VERSION, &sKrxSpellSuite},
    {ZM_SUITE_KIND_REQUIRED, ZM_KRX_STORIES_SUITE_NAME, ZM_KRX_STORIES_SUITE_VERSION, &sKrxStoriesSuite},
    {ZM_SUITE_KIND_REQUIRED, ZM_KRX_STORY_SUITE_NAME, ZM_KRX_STORY_SUITE_VERSION, &sKrxStorySuite},
    {ZM_SUITE_KIND_REQUIRED, ZM_KRX_TAB_STOP_SUITE_NAME, ZM_KRX_TAB_STOP_SUITE_VERSION, &sKrxTabStopSuite},
    {ZM_SUITE_KIND_REQUIRED, ZM_KRX_TAB_STOPS_SUITE_NAME, ZM_KRX_TAB_STOPS_SUITE_VERSION, &sKrxTabStopsSuite},
    {ZM_SUITE_KIND_REQUIRED, ZM_KRX_TAB_STOPS_ITERATOR_SUITE_NAME, ZM_KRX_TAB_STOPS_ITERATOR_SUITE_VERSION, &sKrxTabStopsIteratorSuite},
    {ZM_SUITE_KIND_REQUIRED, ZM_KRX_TEXT_RANGE_SUITE_NAME, ZM_KRX_TEXT_RANGE_SUITE_VERSION, Target(&sKrxTextRangeSuite)},
    {ZM_SUITE_KIND_REQUIRED, ZM_KRX_TEXT_RANGES_SUITE_NAME, ZM_KRX_TEXT_RANGES_SUITE_VERSION, &sKrxTextRangesSuite},
    {ZM_SUITE_KIND_REQUIRED, ZM_KRX_TEXT_RANGES_ITERATOR_SUITE_NAME, ZM_KRX_TEXT_RANGES_ITERATOR_SUITE_VERSION, &sKrxTextRangesIteratorSuite},
    {ZM_SUITE_KIND_REQUIRED, ZM_KRX_TEXT_RUNS_ITERATOR_SUITE_NAME, ZM_KRX_TEXT_RUNS_ITERATOR_SUITE_VERSION, &sKrxTextRunsIteratorSuite},
    {ZM_SUITE_KIND_REQUIRED, ZM_KRX_WORDS_ITERATOR_SUITE_NAME, ZM_KRX_WORDS_ITERATOR_SUITE_VERSION, &sKrxWordsIteratorSuite},
    {ZM_SUITE_KIND_END, nullptr, 0, nullptr},
};

}  // namespace tolvane
