/* Every SDK header compiled as C11, and the layouts both sides of the boundary read. */
#include <zelmora/HVBlocksSuite.h>
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
#include <zelmora/KRXTypes.h>
#include <zelmora/PXMBasicSuite.h>
#include <zelmora/ZMARMSuite.h>
#include <zelmora/ZMArtStyleSuite.h>
#include <zelmora/ZMArtSuite.h>
#include <zelmora/ZMArtTypes.h>
#include <zelmora/ZMArtboardSuite.h>
#include <zelmora/ZMBasicSuite.h>
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
#include <zelmora/ZMPluginMain.h>
#include <zelmora/ZMPreferenceSuite.h>
#include <zelmora/ZMQuorvelPIPSuite.h>
#include <zelmora/ZMRasterSuite.h>
#include <zelmora/ZMRealMathSuite.h>
#include <zelmora/ZMStringFormatUtilsSuite.h>
#include <zelmora/ZMSymbolSuite.h>
#include <zelmora/ZMTextFrameSuite.h>
#include <zelmora/ZMTypes.h>
#include <zelmora/ZMUnicodeStringSuite.h>
#include <zelmora/ZMUserSuite.h>
#include <zelmora/ZMVectorizeSuite.h>
#include <zelmora/ZMWorkspaceSuite.h>

#include <stddef.h>

/* Message records. */
_Static_assert(offsetof(ZMMessageRecord, signature) == 0, "signature");
_Static_assert(offsetof(ZMMessageRecord, reserved) == 4, "reserved");
_Static_assert(offsetof(ZMMessageRecord, self) == 8, "self");
_Static_assert(offsetof(ZMMessageRecord, globals) == 16, "globals");
_Static_assert(offsetof(ZMMessageRecord, basicSuite) == 24, "basicSuite");
_Static_assert(sizeof(ZMMessageRecord) == 32, "ZMMessageRecord size");

_Static_assert(offsetof(ZMNotifierMessage, notifier) == 32, "notifier");
_Static_assert(offsetof(ZMNotifierMessage, type) == 40, "type");
_Static_assert(offsetof(ZMNotifierMessage, notifyData) == 48, "notifyData");

/* Entries that plug-ins call by position. */
_Static_assert(offsetof(ZMBasicSuite, AcquireSuite) == 0, "AcquireSuite");
_Static_assert(offsetof(ZMBasicSuite, ReleaseSuite) == 8, "ReleaseSuite");
_Static_assert(offsetof(ZMBasicSuite, IsEqual) == 16, "IsEqual");
_Static_assert(offsetof(ZMBasicSuite, AllocateBlock) == 24, "AllocateBlock");

_Static_assert(offsetof(ZMLMBPluginSuite, GetPluginData) == 1 * 8, "GetPluginData");
_Static_assert(offsetof(ZMLMBPluginSuite, StartPlugin) == 8 * 8, "StartPlugin");
_Static_assert(offsetof(ZMLMBPluginSuite, StopPlugin) == 9 * 8, "StopPlugin");
_Static_assert(offsetof(ZMLMBPluginSuite, GetPluginRef) == 12 * 8, "GetPluginRef");
_Static_assert(offsetof(ZMLMBPluginSuite, AllocateBlock) == 15 * 8, "AllocateBlock");
_Static_assert(offsetof(ZMLMBPluginSuite, FreeBlock) == 16 * 8, "FreeBlock");

_Static_assert(offsetof(ZMContextSuite, OpenContext) == 8, "OpenContext");
_Static_assert(offsetof(ZMContextSuite, CloseContext) == 16, "CloseContext");

_Static_assert(offsetof(PXMBasicSuite, GetIndexedString) == 0, "GetIndexedString");

_Static_assert(offsetof(ZMUserSuite, WarningAlert) == 37 * 8, "WarningAlert");
_Static_assert(offsetof(ZMUserSuite, ErrorAlert) == 41 * 8, "ErrorAlert");
_Static_assert(offsetof(ZMUserSuite, MessageAlert) == 42 * 8, "MessageAlert");

/* Framework records. */
_Static_assert(offsetof(ZMPluginDescription, name) == 0, "name");
_Static_assert(offsetof(ZMPluginDescription, version) == 8, "version");
_Static_assert(offsetof(ZMPluginDescription, declarations) == 16, "declarations");
_Static_assert(offsetof(ZMPluginDescription, handlers) == 24, "handlers");
_Static_assert(offsetof(ZMPluginDescription, results) == 32, "results");
_Static_assert(sizeof(ZMPluginDescription) == 56, "ZMPluginDescription size");
_Static_assert(sizeof(ZMSuiteDeclaration) == 32, "ZMSuiteDeclaration size");

/* Called from the C++ tests, so the test program stops linking if this file ever drops out. */
int ZMAbiHeadersCompileAsC(void);

int ZMAbiHeadersCompileAsC(void) {
    return 1;
}
