#include "suites/SuiteCatalogue.hpp"

#include "suites/SuiteRegistrations.hpp"

namespace zm::host {

void RegisterAllSuites(SuiteRegistry& registry) {
    RegisterFrameworkSuites(registry);
    RegisterContextSuite(registry);
    RegisterPXMBasicSuite(registry);
    RegisterUserSuite(registry);
    RegisterMenuSuite(registry);
    RegisterNotifierSuite(registry);
    RegisterUnicodeStringSuite(registry);
    RegisterArtSuite(registry);
    RegisterLayerSuite(registry);
    RegisterLayerListSuite(registry);
    RegisterMdMemorySuite(registry);
    RegisterMatchingArtSuite(registry);
    RegisterPathSuite(registry);
    RegisterPathStyleSuite(registry);
    RegisterMaskSuite(registry);
    RegisterPluginGroupSuite(registry);
    RegisterHVPluginsSuite(registry);
    RegisterSymbolSuite(registry);
    RegisterMeshSuite(registry);
    RegisterGraphSuite(registry);
    RegisterLiveShapesSuite(registry);
    RegisterLiveCornersSuite(registry);
    RegisterRealMathSuite(registry);
    RegisterVectorizeSuite(registry);
    RegisterDocumentSuite(registry);
    RegisterArtboardSuite(registry);
    RegisterDictionarySuite(registry);
    RegisterPreferenceSuite(registry);
    RegisterFilePathSuite(registry);
    RegisterCustomColorSuite(registry);
    RegisterGradientSuite(registry);
    RegisterPatternSuite(registry);
    RegisterArtStyleSuite(registry);
    RegisterArtStyleParserSuite(registry);
    RegisterBlendStyleSuite(registry);
    RegisterBrushMgrSuite(registry);
    RegisterStringFormatUtilsSuite(registry);
    RegisterColorConversionSuite(registry);
    RegisterDocumentTextResourcesSuite(registry);
    RegisterDataFilterSuite(registry);
    RegisterColorSpaceSuite(registry);
    RegisterPlacedSuite(registry);
    RegisterRasterSuite(registry);
    RegisterARMSuite(registry);
    RegisterFontSuite(registry);
    RegisterFontGlueSuite(registry);
    RegisterFOConversionSuite(registry);
    RegisterTextFrameSuite(registry);
    RegisterKRXTextFrameSuite(registry);
    RegisterKRXTextRangeSuite(registry);
    RegisterKRXCharInspectorSuite(registry);
    RegisterKRXFontSuite(registry);
    RegisterZMKRXPaintSuite(registry);
    RegisterKRXApplicationPaintSuite(registry);
    RegisterKRXArraySuites(registry);
    RegisterKRXStoriesSuite(registry);
    RegisterKRXStorySuite(registry);
    RegisterKRXTextRangesSuite(registry);
    RegisterKRXTextRangeIteratorSuites(registry);
    RegisterKRXFindSuite(registry);
    RegisterKRXParagraphSuites(registry);
    RegisterKRXParaFeaturesSuite(registry);
    RegisterKRXParaInspectorSuite(registry);
    RegisterKRXParaStyleSuites(registry);
    RegisterKRXTextLineSuites(registry);
    RegisterKRXTextFramesIteratorSuite(registry);
    RegisterKRXCharFeaturesSuite(registry);
    RegisterKRXCharStyleSuites(registry);
    RegisterKRXGlyphSuites(registry);
    RegisterKRXGlyphRunSuites(registry);
    RegisterKRXKinsokuSuites(registry);
    RegisterKRXMojiKumiSuites(registry);
    RegisterKRXCompFontSuites(registry);
    RegisterKRXTabStopSuites(registry);
    RegisterKRXSpellSuite(registry);
    RegisterKRXVersionInfoSuite(registry);
    RegisterKRXTextResourcesSuites(registry);
    RegisterQuorvelPIPSuite(registry);
    RegisterPendingSuites(registry);
}

}  // namespace zm::host
