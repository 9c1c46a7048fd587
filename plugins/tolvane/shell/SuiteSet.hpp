#pragma once

// The host suites the plug-in uses, one module-wide pointer per suite. The framework fills
// every pointer from the required-suite table before start-up and empties them at shut-down;
// the rest of the plug-in calls the host only through them.

#include <zelmora/HVBlocksSuite.h>
#include <zelmora/ZMBasicSuite.h>
#include <zelmora/HVPluginsSuite.h>
#include <zelmora/KRXArraySuites.h>
#include <zelmora/KRXCharSuites.h>
#include <zelmora/KRXCompFontSuites.h>
#include <zelmora/KRXFindSuite.h>
#include <zelmora/KRXFontSuite.h>
#include <zelmora/KRXGlyphSuites.h>
#include <zelmora/KRXKinsokuSuites.h>
#include <zelmora/KRXMojiKumiSuites.h>
#include <zelmora/KRXPaintSuites.h>
#include <zelmora/KRXParagraphSuites.h>
#include <zelmora/KRXSpellSuite.h>
#include <zelmora/KRXStorySuites.h>
#include <zelmora/KRXTabStopSuites.h>
#include <zelmora/KRXTextFrameSuites.h>
#include <zelmora/KRXTextRangeSuites.h>
#include <zelmora/KRXTextResourcesSuites.h>
#include <zelmora/PXMBasicSuite.h>
#include <zelmora/ZMArtStyleSuite.h>
#include <zelmora/ZMArtSuite.h>
#include <zelmora/ZMArtboardSuite.h>
#include <zelmora/ZMBlendStyleSuite.h>
#include <zelmora/ZMBrushMgrSuite.h>
#include <zelmora/ZMCharacterEncodingSuite.h>
#include <zelmora/ZMColorConversionSuite.h>
#include <zelmora/ZMColorSpaceSuite.h>
#include <zelmora/ZMContextSuite.h>
#include <zelmora/ZMCountedObjectSuite.h>
#include <zelmora/ZMCustomColorSuite.h>
#include <zelmora/ZMDataFilterSuite.h>
#include <zelmora/ZMDevUtilsSuite.h>
#include <zelmora/ZMDictionarySuite.h>
#include <zelmora/ZMDocumentSuite.h>
#include <zelmora/ZMFOConversionSuite.h>
#include <zelmora/ZMFilePathSuite.h>
#include <zelmora/ZMFontSuite.h>
#include <zelmora/ZMGradientSuite.h>
#include <zelmora/ZMGraphSuite.h>
#include <zelmora/ZMLayerSuite.h>
#include <zelmora/ZMLiveEffectSuite.h>
#include <zelmora/ZMLiveShapesSuite.h>
#include <zelmora/ZMMaskSuite.h>
#include <zelmora/ZMMatchingArtSuite.h>
#include <zelmora/ZMMdMemorySuite.h>
#include <zelmora/ZMMenuSuite.h>
#include <zelmora/ZMMeshSuite.h>
#include <zelmora/ZMNotifierSuite.h>
#include <zelmora/ZMPathStyleSuite.h>
#include <zelmora/ZMPathSuite.h>
#include <zelmora/ZMPatternSuite.h>
#include <zelmora/ZMPlacedSuite.h>
#include <zelmora/ZMPluginFramework.h>
#include <zelmora/ZMPluginGroupSuite.h>
#include <zelmora/ZMPreferenceSuite.h>
#include <zelmora/ZMQuorvelPIPSuite.h>
#include <zelmora/ZMRasterSuite.h>
#include <zelmora/ZMRealMathSuite.h>
#include <zelmora/ZMStringFormatUtilsSuite.h>
#include <zelmora/ZMSymbolSuite.h>
#include <zelmora/ZMTextFrameSuite.h>
#include <zelmora/ZMUnicodeStringSuite.h>
#include <zelmora/ZMUserSuite.h>
#include <zelmora/ZMWorkspaceSuite.h>

namespace tolvane {

// The host's basic suite as the start-up message gave it; used for the optional suites and
// the globals block. (The framework slot of PluginMain is a separate pointer.)
extern ZMBasicSuite* sBasicSuite;

extern const PXMBasicSuite* sPxmBasicSuite;
extern const ZMMenuSuite* sMenuSuite;
extern const ZMNotifierSuite* sNotifierSuite;
extern const ZMArtSuite* sArtSuite;
extern const ZMArtboardSuite* sArtboardSuite;
extern const ZMArtStyleSuite* sArtStyleSuite;
extern const ZMArtStyleParserSuite* sArtStyleParserSuite;
extern const ZMBlendStyleSuite* sBlendStyleSuite;
extern const ZMBrushMgrSuite* sBrushMgrSuite;
extern const ZMCustomColorSuite* sCustomColorSuite;
extern const void* sCharacterEncodingSuite;
extern const ZMDataFilterSuite* sDataFilterSuite;
extern const void* sDevUtilsSuite;
extern const ZMDictionarySuite* sDictionarySuite;
extern const ZMDocumentSuite* sDocumentSuite;
extern const ZMFilePathSuite* sFilePathSuite;
extern const ZMFontSuite* sFontSuite;
extern const ZMFontGlueSuite* sFontGlueSuite;
extern const ZMGradientSuite* sGradientSuite;
extern const ZMGraphSuite* sGraphSuite;
extern const ZMLayerSuite* sLayerSuite;
extern const ZMLayerListSuite* sLayerListSuite;
extern const void* sLiveEffectSuite;
extern const ZMMaskSuite* sMaskSuite;
extern const ZMMatchingArtSuite* sMatchingArtSuite;
extern const ZMMdMemorySuite* sMdMemorySuite;
extern const ZMMeshSuite* sMeshSuite;
extern const ZMColorConversionSuite* sOverrideColorConversionSuite;
extern const ZMPathSuite* sPathSuite;
extern const ZMPathStyleSuite* sPathStyleSuite;
extern const ZMPatternSuite* sPatternSuite;
extern const ZMQuorvelPIPSuite* sQuorvelPipSuite;
extern const ZMPlacedSuite* sPlacedSuite;
extern const ZMPluginGroupSuite* sPluginGroupSuite;
extern const ZMPreferenceSuite* sPreferenceSuite;
extern const ZMRasterSuite* sRasterSuite;
extern const ZMSymbolSuite* sSymbolSuite;
extern const ZMUserSuite* sUserSuite;
extern const void* sWorkspaceSuite;
extern const HVPluginsSuite* sHvPluginsSuite;
extern const ZMLMBPluginSuite* sLmbPluginSuite;
extern const ZMLMBUtilsSuite* sLmbUtilsSuite;
extern const ZMUnicodeStringSuite* sUnicodeStringSuite;
extern const ZMColorSpaceSuite* sColorSpaceSuite;
extern const ZMStringFormatUtilsSuite* sStringFormatUtilsSuite;
extern const void* sHvBlocksSuite;
extern const ZMTextFrameSuite* sTextFrameSuite;
extern const ZMFOConversionSuite* sFoConversionSuite;
extern const ZMContextSuite* sContextSuite;
extern const ZMLiveCornersSuite* sLiveCornersSuite;
extern const ZMRealMathSuite* sRealMathSuite;
extern const void* sCountedObjectSuite;
extern const ZMKRXPaintSuite* sZmkrxPaintSuite;
extern const KRXApplicationPaintSuite* sKrxApplicationPaintSuite;
extern const void* sKrxCompFontSuite;
extern const void* sKrxCompFontClassSuite;
extern const void* sKrxCompFontClassSetSuite;
extern const void* sKrxCompFontComponentSuite;
extern const void* sKrxCompFontSetSuite;
extern const void* sKrxGlyphRunSuite;
extern const void* sKrxGlyphRunsIteratorSuite;
extern const void* sKrxMojiKumiSuite;
extern const void* sKrxMojiKumiSetSuite;
extern const KRXTextFrameSuite* sKrxTextFrameSuite;
extern const void* sKrxTextFramesIteratorSuite;
extern const void* sKrxTextLineSuite;
extern const void* sKrxTextLinesIteratorSuite;
extern const void* sKrxTextResourcesSuite;
extern const void* sKrxApplicationTextResourcesSuite;
extern const KRXDocumentTextResourcesSuite* sKrxDocumentTextResourcesSuite;
extern const void* sKrxVersionInfoSuite;
extern const KRXArrayApplicationPaintRefSuite* sKrxArrayApplicationPaintRefSuite;
extern const KRXArrayRealSuite* sKrxArrayRealSuite;
extern const void* sKrxArrayBoolSuite;
extern const void* sKrxArrayIntegerSuite;
extern const void* sKrxArrayLineCapTypeSuite;
extern const void* sKrxArrayFigureStyleSuite;
extern const void* sKrxArrayLineJoinTypeSuite;
extern const void* sKrxArrayWariChuJustificationSuite;
extern const void* sKrxArrayStyleRunAlignmentSuite;
extern const void* sKrxArrayAutoKernTypeSuite;
extern const void* sKrxArrayBaselineDirectionSuite;
extern const void* sKrxArrayLanguageSuite;
extern const void* sKrxArrayFontCapsOptionSuite;
extern const void* sKrxArrayFontBaselineOptionSuite;
extern const void* sKrxArrayFontOpenTypePositionOptionSuite;
extern const void* sKrxArrayUnderlinePositionSuite;
extern const void* sKrxArrayStrikethroughPositionSuite;
extern const void* sKrxArrayParagraphJustificationSuite;
extern const void* sKrxArrayArrayRealSuite;
extern const void* sKrxArrayBurasagariTypeSuite;
extern const void* sKrxArrayPreferredKinsokuOrderSuite;
extern const void* sKrxArrayKinsokuRefSuite;
extern const void* sKrxArrayMojiKumiRefSuite;
extern const void* sKrxArrayMojiKumiSetRefSuite;
extern const void* sKrxArrayTabStopsRefSuite;
extern const void* sKrxArrayLeadingTypeSuite;
extern const KRXArrayFontRefSuite* sKrxArrayFontRefSuite;
extern const void* sKrxArrayGlyphIdSuite;
extern const void* sKrxArrayRealPointSuite;
extern const void* sKrxArrayRealMatrixSuite;
extern const void* sKrxArrayParagraphDirectionSuite;
extern const void* sKrxArrayJustificationMethodSuite;
extern const void* sKrxArrayKashidaWidthSuite;
extern const void* sKrxArrayKashidasSuite;
extern const void* sKrxArrayDirOverrideSuite;
extern const void* sKrxArrayDigitSetSuite;
extern const void* sKrxArrayDiacVPosSuite;
extern const void* sKrxCharFeaturesSuite;
extern const KRXCharInspectorSuite* sKrxCharInspectorSuite;
extern const void* sKrxCharStyleSuite;
extern const void* sKrxCharStylesSuite;
extern const void* sKrxCharStylesIteratorSuite;
extern const void* sKrxFindSuite;
extern const KRXFontSuite* sKrxFontSuite;
extern const void* sKrxGlyphSuite;
extern const void* sKrxGlyphsSuite;
extern const void* sKrxGlyphsIteratorSuite;
extern const void* sKrxKinsokuSuite;
extern const void* sKrxKinsokuSetSuite;
extern const void* sKrxParaFeaturesSuite;
extern const void* sKrxParagraphSuite;
extern const void* sKrxParagraphsIteratorSuite;
extern const void* sKrxParaInspectorSuite;
extern const void* sKrxParaStyleSuite;
extern const void* sKrxParaStylesSuite;
extern const void* sKrxParaStylesIteratorSuite;
extern const void* sKrxSpellSuite;
extern const void* sKrxStoriesSuite;
extern const void* sKrxStorySuite;
extern const void* sKrxTabStopSuite;
extern const void* sKrxTabStopsSuite;
extern const void* sKrxTabStopsIteratorSuite;
extern const KRXTextRangeSuite* sKrxTextRangeSuite;
extern const void* sKrxTextRangesSuite;
extern const void* sKrxTextRangesIteratorSuite;
extern const void* sKrxTextRunsIteratorSuite;
extern const void* sKrxWordsIteratorSuite;

// The table the framework walks: 138 rows and an end row.
extern const ZMSuiteDeclaration kRequiredSuites[];

}  // namespace tolvane
