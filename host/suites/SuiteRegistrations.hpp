#pragma once

#include "registry/SuiteRegistry.hpp"

namespace zm::host {

// One per suite file: adds that file's tables to the registry.
void RegisterFrameworkSuites(SuiteRegistry& registry);
void RegisterContextSuite(SuiteRegistry& registry);
void RegisterPXMBasicSuite(SuiteRegistry& registry);
void RegisterUserSuite(SuiteRegistry& registry);
void RegisterMenuSuite(SuiteRegistry& registry);
void RegisterNotifierSuite(SuiteRegistry& registry);
void RegisterUnicodeStringSuite(SuiteRegistry& registry);
void RegisterArtSuite(SuiteRegistry& registry);
void RegisterLayerSuite(SuiteRegistry& registry);
void RegisterLayerListSuite(SuiteRegistry& registry);
void RegisterMdMemorySuite(SuiteRegistry& registry);
void RegisterMatchingArtSuite(SuiteRegistry& registry);
void RegisterPathSuite(SuiteRegistry& registry);
void RegisterPathStyleSuite(SuiteRegistry& registry);
void RegisterMaskSuite(SuiteRegistry& registry);
void RegisterPluginGroupSuite(SuiteRegistry& registry);
void RegisterHVPluginsSuite(SuiteRegistry& registry);
void RegisterSymbolSuite(SuiteRegistry& registry);
void RegisterMeshSuite(SuiteRegistry& registry);
void RegisterGraphSuite(SuiteRegistry& registry);
void RegisterLiveShapesSuite(SuiteRegistry& registry);
void RegisterLiveCornersSuite(SuiteRegistry& registry);
void RegisterRealMathSuite(SuiteRegistry& registry);
void RegisterVectorizeSuite(SuiteRegistry& registry);
void RegisterDocumentSuite(SuiteRegistry& registry);
void RegisterArtboardSuite(SuiteRegistry& registry);
void RegisterDictionarySuite(SuiteRegistry& registry);
void RegisterPreferenceSuite(SuiteRegistry& registry);
void RegisterFilePathSuite(SuiteRegistry& registry);
void RegisterCustomColorSuite(SuiteRegistry& registry);
void RegisterGradientSuite(SuiteRegistry& registry);
void RegisterPatternSuite(SuiteRegistry& registry);
void RegisterArtStyleSuite(SuiteRegistry& registry);
void RegisterArtStyleParserSuite(SuiteRegistry& registry);
void RegisterBlendStyleSuite(SuiteRegistry& registry);
void RegisterBrushMgrSuite(SuiteRegistry& registry);
void RegisterStringFormatUtilsSuite(SuiteRegistry& registry);
void RegisterColorConversionSuite(SuiteRegistry& registry);
void RegisterDocumentTextResourcesSuite(SuiteRegistry& registry);
void RegisterDataFilterSuite(SuiteRegistry& registry);
void RegisterColorSpaceSuite(SuiteRegistry& registry);
void RegisterPlacedSuite(SuiteRegistry& registry);
void RegisterRasterSuite(SuiteRegistry& registry);
void RegisterARMSuite(SuiteRegistry& registry);
void RegisterFontSuite(SuiteRegistry& registry);
void RegisterFontGlueSuite(SuiteRegistry& registry);
void RegisterFOConversionSuite(SuiteRegistry& registry);
void RegisterTextFrameSuite(SuiteRegistry& registry);
void RegisterKRXTextFrameSuite(SuiteRegistry& registry);
void RegisterKRXTextRangeSuite(SuiteRegistry& registry);
void RegisterKRXCharInspectorSuite(SuiteRegistry& registry);
void RegisterKRXFontSuite(SuiteRegistry& registry);
void RegisterZMKRXPaintSuite(SuiteRegistry& registry);
void RegisterKRXApplicationPaintSuite(SuiteRegistry& registry);
void RegisterKRXArraySuites(SuiteRegistry& registry);
void RegisterKRXStoriesSuite(SuiteRegistry& registry);
void RegisterKRXStorySuite(SuiteRegistry& registry);
void RegisterKRXTextRangesSuite(SuiteRegistry& registry);
void RegisterKRXTextRangeIteratorSuites(SuiteRegistry& registry);
void RegisterKRXFindSuite(SuiteRegistry& registry);
void RegisterKRXParagraphSuites(SuiteRegistry& registry);
void RegisterKRXParaFeaturesSuite(SuiteRegistry& registry);
void RegisterKRXParaInspectorSuite(SuiteRegistry& registry);
void RegisterKRXParaStyleSuites(SuiteRegistry& registry);
void RegisterKRXTextLineSuites(SuiteRegistry& registry);
void RegisterKRXTextFramesIteratorSuite(SuiteRegistry& registry);
void RegisterKRXCharFeaturesSuite(SuiteRegistry& registry);
void RegisterKRXCharStyleSuites(SuiteRegistry& registry);
void RegisterKRXGlyphSuites(SuiteRegistry& registry);
void RegisterKRXGlyphRunSuites(SuiteRegistry& registry);
void RegisterKRXKinsokuSuites(SuiteRegistry& registry);
void RegisterKRXMojiKumiSuites(SuiteRegistry& registry);
void RegisterKRXCompFontSuites(SuiteRegistry& registry);
void RegisterKRXTabStopSuites(SuiteRegistry& registry);
void RegisterKRXSpellSuite(SuiteRegistry& registry);
void RegisterKRXVersionInfoSuite(SuiteRegistry& registry);
void RegisterKRXTextResourcesSuites(SuiteRegistry& registry);
void RegisterQuorvelPIPSuite(SuiteRegistry& registry);
void RegisterPendingSuites(SuiteRegistry& registry);

}  // namespace zm::host
