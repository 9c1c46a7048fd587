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
#include <zelmora/PXMBasicSuite.h>
#include <zelmora/ZMARMSuite.h>
#include <zelmora/ZMArtStyleSuite.h>
#include <zelmora/ZMArtSuite.h>
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

// Framework records.
static_assert(offsetof(ZMPluginDescription, name) == 0);
static_assert(offsetof(ZMPluginDescription, version) == 8);
static_assert(offsetof(ZMPluginDescription, declarations) == 16);
static_assert(offsetof(ZMPluginDescription, handlers) == 24);
static_assert(offsetof(ZMPluginDescription, results) == 32);
static_assert(sizeof(ZMPluginDescription) == 56);
static_assert(sizeof(ZMSuiteDeclaration) == 32);

namespace {

struct SuiteRow {
    std::string name;
    int32_t version;
};

// Pairs a suite's name and version constants, so a row cannot mix two suites.
#define ZM_SUITE_ROW(suite) {suite##_NAME, suite##_VERSION}

// The suites a plug-in requires, in the order it declares them: first the host's own suites,
// then the text engine's.
const std::vector<SuiteRow>& RequiredSuites() {
    static const std::vector<SuiteRow> rows = {
        ZM_SUITE_ROW(ZM_PXM_BASIC_SUITE),
        ZM_SUITE_ROW(ZM_MENU_SUITE),
        ZM_SUITE_ROW(ZM_NOTIFIER_SUITE),
        ZM_SUITE_ROW(ZM_ART_SUITE),
        ZM_SUITE_ROW(ZM_ARTBOARD_SUITE),
        ZM_SUITE_ROW(ZM_ART_STYLE_SUITE),
        ZM_SUITE_ROW(ZM_ART_STYLE_PARSER_SUITE),
        ZM_SUITE_ROW(ZM_BLEND_STYLE_SUITE),
        ZM_SUITE_ROW(ZM_BRUSH_MGR_SUITE),
        ZM_SUITE_ROW(ZM_CUSTOM_COLOR_SUITE),
        ZM_SUITE_ROW(ZM_CHARACTER_ENCODING_SUITE),
        ZM_SUITE_ROW(ZM_DATA_FILTER_SUITE),
        ZM_SUITE_ROW(ZM_DEV_UTILS_SUITE),
        ZM_SUITE_ROW(ZM_DICTIONARY_SUITE),
        ZM_SUITE_ROW(ZM_DOCUMENT_SUITE),
        ZM_SUITE_ROW(ZM_FILE_PATH_SUITE),
        ZM_SUITE_ROW(ZM_FONT_SUITE),
        ZM_SUITE_ROW(ZM_FONT_GLUE_SUITE),
        ZM_SUITE_ROW(ZM_GRADIENT_SUITE),
        ZM_SUITE_ROW(ZM_GRAPH_SUITE),
        ZM_SUITE_ROW(ZM_LAYER_SUITE),
        ZM_SUITE_ROW(ZM_LAYER_LIST_SUITE),
        ZM_SUITE_ROW(ZM_LIVE_EFFECT_SUITE),
        ZM_SUITE_ROW(ZM_MASK_SUITE),
        ZM_SUITE_ROW(ZM_MATCHING_ART_SUITE),
        ZM_SUITE_ROW(ZM_MD_MEMORY_SUITE),
        ZM_SUITE_ROW(ZM_MESH_SUITE),
        ZM_SUITE_ROW(ZM_OVERRIDE_COLOR_CONVERSION_SUITE),
        ZM_SUITE_ROW(ZM_PATH_SUITE),
        ZM_SUITE_ROW(ZM_PATH_STYLE_SUITE),
        ZM_SUITE_ROW(ZM_PATTERN_SUITE),
        ZM_SUITE_ROW(ZM_QUORVEL_PIP_SUITE),
        ZM_SUITE_ROW(ZM_PLACED_SUITE),
        ZM_SUITE_ROW(ZM_PLUGIN_GROUP_SUITE),
        ZM_SUITE_ROW(ZM_PREFERENCE_SUITE),
        ZM_SUITE_ROW(ZM_RASTER_SUITE),
        ZM_SUITE_ROW(ZM_SYMBOL_SUITE),
        ZM_SUITE_ROW(ZM_USER_SUITE),
        ZM_SUITE_ROW(ZM_WORKSPACE_SUITE),
        ZM_SUITE_ROW(ZM_HV_PLUGINS_SUITE),
        ZM_SUITE_ROW(ZM_LMB_PLUGIN_SUITE),
        ZM_SUITE_ROW(ZM_LMB_UTILS_SUITE),
        ZM_SUITE_ROW(ZM_UNICODE_STRING_SUITE),
        ZM_SUITE_ROW(ZM_COLOR_SPACE_SUITE),
        ZM_SUITE_ROW(ZM_STRING_FORMAT_UTILS_SUITE),
        ZM_SUITE_ROW(ZM_HV_BLOCKS_SUITE),
        ZM_SUITE_ROW(ZM_TEXT_FRAME_SUITE),
        ZM_SUITE_ROW(ZM_FO_CONVERSION_SUITE),
        ZM_SUITE_ROW(ZM_CONTEXT_SUITE),
        ZM_SUITE_ROW(ZM_LIVE_CORNERS_SUITE),
        ZM_SUITE_ROW(ZM_REAL_MATH_SUITE),
        ZM_SUITE_ROW(ZM_COUNTED_OBJECT_SUITE),
        ZM_SUITE_ROW(ZM_ZMKRX_PAINT_SUITE),
        ZM_SUITE_ROW(ZM_KRX_APPLICATION_PAINT_SUITE),
        ZM_SUITE_ROW(ZM_KRX_COMP_FONT_SUITE),
        ZM_SUITE_ROW(ZM_KRX_COMP_FONT_CLASS_SUITE),
        ZM_SUITE_ROW(ZM_KRX_COMP_FONT_CLASS_SET_SUITE),
        ZM_SUITE_ROW(ZM_KRX_COMP_FONT_COMPONENT_SUITE),
        ZM_SUITE_ROW(ZM_KRX_COMP_FONT_SET_SUITE),
        ZM_SUITE_ROW(ZM_KRX_GLYPH_RUN_SUITE),
        ZM_SUITE_ROW(ZM_KRX_GLYPH_RUNS_ITERATOR_SUITE),
        ZM_SUITE_ROW(ZM_KRX_MOJI_KUMI_SUITE),
        ZM_SUITE_ROW(ZM_KRX_MOJI_KUMI_SET_SUITE),
        ZM_SUITE_ROW(ZM_KRX_TEXT_FRAME_SUITE),
        ZM_SUITE_ROW(ZM_KRX_TEXT_FRAMES_ITERATOR_SUITE),
        ZM_SUITE_ROW(ZM_KRX_TEXT_LINE_SUITE),
        ZM_SUITE_ROW(ZM_KRX_TEXT_LINES_ITERATOR_SUITE),
        ZM_SUITE_ROW(ZM_KRX_TEXT_RESOURCES_SUITE),
        ZM_SUITE_ROW(ZM_KRX_APPLICATION_TEXT_RESOURCES_SUITE),
        ZM_SUITE_ROW(ZM_KRX_DOCUMENT_TEXT_RESOURCES_SUITE),
        ZM_SUITE_ROW(ZM_KRX_VERSION_INFO_SUITE),
        ZM_SUITE_ROW(ZM_KRX_ARRAY_APPLICATION_PAINT_REF_SUITE),
        ZM_SUITE_ROW(ZM_KRX_ARRAY_REAL_SUITE),
        ZM_SUITE_ROW(ZM_KRX_ARRAY_BOOL_SUITE),
        ZM_SUITE_ROW(ZM_KRX_ARRAY_INTEGER_SUITE),
        ZM_SUITE_ROW(ZM_KRX_ARRAY_LINE_CAP_TYPE_SUITE),
        ZM_SUITE_ROW(ZM_KRX_ARRAY_FIGURE_STYLE_SUITE),
        ZM_SUITE_ROW(ZM_KRX_ARRAY_LINE_JOIN_TYPE_SUITE),
        ZM_SUITE_ROW(ZM_KRX_ARRAY_WARI_CHU_JUSTIFICATION_SUITE),
        ZM_SUITE_ROW(ZM_KRX_ARRAY_STYLE_RUN_ALIGNMENT_SUITE),
        ZM_SUITE_ROW(ZM_KRX_ARRAY_AUTO_KERN_TYPE_SUITE),
        ZM_SUITE_ROW(ZM_KRX_ARRAY_BASELINE_DIRECTION_SUITE),
        ZM_SUITE_ROW(ZM_KRX_ARRAY_LANGUAGE_SUITE),
        ZM_SUITE_ROW(ZM_KRX_ARRAY_FONT_CAPS_OPTION_SUITE),
        ZM_SUITE_ROW(ZM_KRX_ARRAY_FONT_BASELINE_OPTION_SUITE),
        ZM_SUITE_ROW(ZM_KRX_ARRAY_FONT_OPEN_TYPE_POSITION_OPTION_SUITE),
        ZM_SUITE_ROW(ZM_KRX_ARRAY_UNDERLINE_POSITION_SUITE),
        ZM_SUITE_ROW(ZM_KRX_ARRAY_STRIKETHROUGH_POSITION_SUITE),
        ZM_SUITE_ROW(ZM_KRX_ARRAY_PARAGRAPH_JUSTIFICATION_SUITE),
        ZM_SUITE_ROW(ZM_KRX_ARRAY_ARRAY_REAL_SUITE),
        ZM_SUITE_ROW(ZM_KRX_ARRAY_BURASAGARI_TYPE_SUITE),
        ZM_SUITE_ROW(ZM_KRX_ARRAY_PREFERRED_KINSOKU_ORDER_SUITE),
        ZM_SUITE_ROW(ZM_KRX_ARRAY_KINSOKU_REF_SUITE),
        ZM_SUITE_ROW(ZM_KRX_ARRAY_MOJI_KUMI_REF_SUITE),
        ZM_SUITE_ROW(ZM_KRX_ARRAY_MOJI_KUMI_SET_REF_SUITE),
        ZM_SUITE_ROW(ZM_KRX_ARRAY_TAB_STOPS_REF_SUITE),
        ZM_SUITE_ROW(ZM_KRX_ARRAY_LEADING_TYPE_SUITE),
        ZM_SUITE_ROW(ZM_KRX_ARRAY_FONT_REF_SUITE),
        ZM_SUITE_ROW(ZM_KRX_ARRAY_GLYPH_ID_SUITE),
        ZM_SUITE_ROW(ZM_KRX_ARRAY_REAL_POINT_SUITE),
        ZM_SUITE_ROW(ZM_KRX_ARRAY_REAL_MATRIX_SUITE),
        ZM_SUITE_ROW(ZM_KRX_ARRAY_PARAGRAPH_DIRECTION_SUITE),
        ZM_SUITE_ROW(ZM_KRX_ARRAY_JUSTIFICATION_METHOD_SUITE),
        ZM_SUITE_ROW(ZM_KRX_ARRAY_KASHIDA_WIDTH_SUITE),
        ZM_SUITE_ROW(ZM_KRX_ARRAY_KASHIDAS_SUITE),
        ZM_SUITE_ROW(ZM_KRX_ARRAY_DIR_OVERRIDE_SUITE),
        ZM_SUITE_ROW(ZM_KRX_ARRAY_DIGIT_SET_SUITE),
        ZM_SUITE_ROW(ZM_KRX_ARRAY_DIAC_V_POS_SUITE),
        ZM_SUITE_ROW(ZM_KRX_CHAR_FEATURES_SUITE),
        ZM_SUITE_ROW(ZM_KRX_CHAR_INSPECTOR_SUITE),
        ZM_SUITE_ROW(ZM_KRX_CHAR_STYLE_SUITE),
        ZM_SUITE_ROW(ZM_KRX_CHAR_STYLES_SUITE),
        ZM_SUITE_ROW(ZM_KRX_CHAR_STYLES_ITERATOR_SUITE),
        ZM_SUITE_ROW(ZM_KRX_FIND_SUITE),
        ZM_SUITE_ROW(ZM_KRX_FONT_SUITE),
        ZM_SUITE_ROW(ZM_KRX_GLYPH_SUITE),
        ZM_SUITE_ROW(ZM_KRX_GLYPHS_SUITE),
        ZM_SUITE_ROW(ZM_KRX_GLYPHS_ITERATOR_SUITE),
        ZM_SUITE_ROW(ZM_KRX_KINSOKU_SUITE),
        ZM_SUITE_ROW(ZM_KRX_KINSOKU_SET_SUITE),
        ZM_SUITE_ROW(ZM_KRX_PARA_FEATURES_SUITE),
        ZM_SUITE_ROW(ZM_KRX_PARAGRAPH_SUITE),
        ZM_SUITE_ROW(ZM_KRX_PARAGRAPHS_ITERATOR_SUITE),
        ZM_SUITE_ROW(ZM_KRX_PARA_INSPECTOR_SUITE),
        ZM_SUITE_ROW(ZM_KRX_PARA_STYLE_SUITE),
        ZM_SUITE_ROW(ZM_KRX_PARA_STYLES_SUITE),
        ZM_SUITE_ROW(ZM_KRX_PARA_STYLES_ITERATOR_SUITE),
        ZM_SUITE_ROW(ZM_KRX_SPELL_SUITE),
        ZM_SUITE_ROW(ZM_KRX_STORIES_SUITE),
        ZM_SUITE_ROW(ZM_KRX_STORY_SUITE),
        ZM_SUITE_ROW(ZM_KRX_TAB_STOP_SUITE),
        ZM_SUITE_ROW(ZM_KRX_TAB_STOPS_SUITE),
        ZM_SUITE_ROW(ZM_KRX_TAB_STOPS_ITERATOR_SUITE),
        ZM_SUITE_ROW(ZM_KRX_TEXT_RANGE_SUITE),
        ZM_SUITE_ROW(ZM_KRX_TEXT_RANGES_SUITE),
        ZM_SUITE_ROW(ZM_KRX_TEXT_RANGES_ITERATOR_SUITE),
        ZM_SUITE_ROW(ZM_KRX_TEXT_RUNS_ITERATOR_SUITE),
        ZM_SUITE_ROW(ZM_KRX_WORDS_ITERATOR_SUITE),
    };
    return rows;
}

#undef ZM_SUITE_ROW

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
