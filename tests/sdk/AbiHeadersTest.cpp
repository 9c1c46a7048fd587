// Every SDK header compiled as C++, the layouts both sides of the boundary read, and the suite
// names and versions that plug-ins declare.
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

#include "support/DeclaredSuites.hpp"

#include <gtest/gtest.h>

#include <cstddef>
#include <cstdint>
#include <map>
#include <set>
#include <string>
#include <vector>

extern "C" int ZMAbiHeadersCompileAsC(void);

// Message records.
static_assert(offsetof(ZMMessageRecord, signature) == 0);
static_assert(offsetof(ZMMessageRecord, reserved) == 4);
static_assert(offsetof(ZMMessageRecord, self) == 8);
static_assert(offsetof(ZMMessageRecord, globals) == 16);
static_assert(offsetof(ZMMessageRecord, basicSuite) == 24);
static_assert(sizeof(ZMMessageRecord) == 32);

// Records the art suites share: a colour is its kind and a union of doubles or handles.
static_assert(sizeof(ZMColor) == 40);
static_assert(offsetof(ZMColor, c) == 8);
static_assert(sizeof(ZMPathSegment) == 56);
static_assert(offsetof(ZMPathStyle, fill) == 8);
// A matching criterion is built by hand on the plug-in side: type, padding, mask, value.
static_assert(sizeof(ZMMatchCriterion) == 12);
static_assert(offsetof(ZMMatchCriterion, mask) == 4);
static_assert(offsetof(ZMMatchCriterion, value) == 8);

// Text engine and foreign-object records.
static_assert(sizeof(KRXRealMatrix) == 48);
static_assert(offsetof(ZMFOContentItem, value) == 8);
static_assert(sizeof(ZMFOContentItem) == 16);
static_assert(offsetof(KRXArrayFontRefSuite, Item) == 6 * 8);
static_assert(offsetof(KRXCharInspectorSuite, GetStrokeColor) == 5 * 8);
static_assert(offsetof(ZMFontSuite, FontKeyFromKRXFont) == 5 * 8);
// Usage data: operations 1 and 2 are called by position.
static_assert(offsetof(ZMQuorvelPIPSuite, BeginGroup) == 1 * 8);
static_assert(offsetof(ZMQuorvelPIPSuite, AddEntry) == 2 * 8);

static_assert(offsetof(ZMNotifierMessage, notifier) == 32);
static_assert(offsetof(ZMNotifierMessage, type) == 40);
static_assert(offsetof(ZMNotifierMessage, notifyData) == 48);

// Entries that plug-ins call by position.
static_assert(offsetof(ZMBasicSuite, AcquireSuite) == 0);
static_assert(offsetof(ZMBasicSuite, ReleaseSuite) == 8);
static_assert(offsetof(ZMBasicSuite, IsEqual) == 16);
static_assert(offsetof(ZMBasicSuite, AllocateBlock) == 24);

static_assert(offsetof(ZMLMBPluginSuite, GetPluginData) == 1 * 8);
static_assert(offsetof(ZMLMBPluginSuite, StartPlugin) == 8 * 8);
static_assert(offsetof(ZMLMBPluginSuite, StopPlugin) == 9 * 8);
static_assert(offsetof(ZMLMBPluginSuite, GetPluginRef) == 12 * 8);
static_assert(offsetof(ZMLMBPluginSuite, AllocateBlock) == 15 * 8);
static_assert(offsetof(ZMLMBPluginSuite, FreeBlock) == 16 * 8);

static_assert(offsetof(ZMContextSuite, OpenContext) == 8);
static_assert(offsetof(ZMContextSuite, CloseContext) == 16);

static_assert(offsetof(PXMBasicSuite, GetIndexedString) == 0);

static_assert(offsetof(ZMUserSuite, WarningAlert) == 37 * 8);
static_assert(offsetof(ZMUserSuite, ErrorAlert) == 41 * 8);
static_assert(offsetof(ZMUserSuite, MessageAlert) == 42 * 8);

static_assert(offsetof(ZMDocumentSuite, GetDocument) == 19 * 8);

// Records of the document and paint suites.
static_assert(sizeof(ZMDocumentSetup) == 56);
static_assert(offsetof(ZMDocumentSetup, showPlacedImages) == 16);
static_assert(sizeof(ZMCustomColor) == 48);
static_assert(offsetof(ZMCustomColor, flags) == 40);
static_assert(sizeof(ZMGradientStop) == 64);
static_assert(offsetof(ZMGradientStop, color) == 24);

// Framework records.
static_assert(offsetof(ZMPluginDescription, name) == 0);
static_assert(offsetof(ZMPluginDescription, version) == 8);
static_assert(offsetof(ZMPluginDescription, declarations) == 16);
static_assert(offsetof(ZMPluginDescription, handlers) == 24);
static_assert(offsetof(ZMPluginDescription, results) == 32);
static_assert(sizeof(ZMPluginDescription) == 56);
static_assert(sizeof(ZMSuiteDeclaration) == 32);

namespace {

using zm::test::SuiteRow;

const std::vector<SuiteRow>& RequiredSuites() { return zm::test::RequiredSuiteRows(); }

constexpr size_t kHostSuiteCount = 52;

int32_t VersionOf(const std::string& name) {
    for (const SuiteRow& row : RequiredSuites()) {
        if (row.name == name) {
            return row.version;
        }
    }
    return -1;
}

bool IsTextEngineSuite(const std::string& name) {
    return name.rfind("KRX ", 0) == 0 || name.rfind("ZMKRX ", 0) == 0;
}

TEST(AbiHeadersTest, TheHeadersCompileAsC) {
    EXPECT_EQ(ZMAbiHeadersCompileAsC(), 1);
}

TEST(AbiHeadersTest, ThePluginRequires138Suites) {
    EXPECT_EQ(RequiredSuites().size(), 138u);
}

TEST(AbiHeadersTest, EveryRequiredSuiteHasItsOwnName) {
    std::set<std::string> names;
    for (const SuiteRow& row : RequiredSuites()) {
        EXPECT_TRUE(names.insert(row.name).second) << row.name;
    }
}

TEST(AbiHeadersTest, TheFrameworkSuitesComeFirst) {
    ASSERT_GE(RequiredSuites().size(), 3u);
    EXPECT_EQ(RequiredSuites()[0].name, "PXM Basic Suite");
    EXPECT_EQ(RequiredSuites()[1].name, "ZM Menu Suite");
    EXPECT_EQ(RequiredSuites()[2].name, "ZM Notifier Suite");
}

TEST(AbiHeadersTest, HostSuitesComeBeforeTheTextEngineSuites) {
    const std::vector<SuiteRow>& rows = RequiredSuites();
    for (size_t index = 0; index < rows.size(); ++index) {
        EXPECT_EQ(IsTextEngineSuite(rows[index].name), index >= kHostSuiteCount)
            << rows[index].name;
    }
}

TEST(AbiHeadersTest, RequiredSuitesCarryTheirVersions) {
    EXPECT_EQ(VersionOf("PXM Basic Suite"), 12);
    EXPECT_EQ(VersionOf("ZM Art Suite"), 17);
    EXPECT_EQ(VersionOf("ZM Document Suite"), 16);
    EXPECT_EQ(VersionOf("ZM Layer List"), 4);
    EXPECT_EQ(VersionOf("Override ZM Color Conversion Suite"), 7);
    EXPECT_EQ(VersionOf("HV Plug-ins Suite"), 6);
    EXPECT_EQ(VersionOf("ZMKRX Paint Suite"), 3);
    EXPECT_EQ(VersionOf("KRX TextLine Suite"), 2);
    EXPECT_EQ(VersionOf("KRX CharInspector Suite"), 101);
    EXPECT_EQ(VersionOf("KRX ArrayReal Suite"), 1);
}

TEST(AbiHeadersTest, TextEngineSuitesAreVersionOneUnlessNamedOtherwise) {
    const std::map<std::string, int32_t> others = {
        {"ZMKRX Paint Suite", 3},
        {"KRX TextLine Suite", 2},
        {"KRX TextFrame Suite", 101},
        {"KRX DocumentTextResources Suite", 101},
        {"KRX CharFeatures Suite", 101},
        {"KRX CharInspector Suite", 101},
        {"KRX Find Suite", 101},
        {"KRX ParaFeatures Suite", 101},
        {"KRX ParaInspector Suite", 101},
        {"KRX Spell Suite", 101},
    };
    for (const SuiteRow& row : RequiredSuites()) {
        if (!IsTextEngineSuite(row.name)) {
            continue;
        }
        auto other = others.find(row.name);
        EXPECT_EQ(row.version, other == others.end() ? 1 : other->second) << row.name;
    }
}

TEST(AbiHeadersTest, OptionalSuitesCarryTheirNamesAndVersions) {
    EXPECT_STREQ(ZM_LIVE_SHAPES_SUITE_NAME, "ZM Live Shapes Suite");
    EXPECT_EQ(ZM_LIVE_SHAPES_SUITE_VERSION, 1);
    EXPECT_STREQ(ZM_VECTORIZE_SUITE_NAME, "ZM Vectorize Suite");
    EXPECT_EQ(ZM_VECTORIZE_SUITE_VERSION, 1);
    EXPECT_STREQ(ZM_ARM_SUITE_NAME, "ZM ARM Suite");
    EXPECT_EQ(ZM_ARM_SUITE_VERSION, 3);
}

}  // namespace
