#include "suites/SuiteRegistrations.hpp"

#include "support/DeclaredSuites.hpp"

#include <zelmora/ZMPluginFramework.h>
#include <zelmora/ZMContextSuite.h>
#include <zelmora/PXMBasicSuite.h>
#include <zelmora/ZMUserSuite.h>
#include <zelmora/ZMMenuSuite.h>
#include <zelmora/ZMNotifierSuite.h>
#include <zelmora/ZMUnicodeStringSuite.h>
#include <zelmora/ZMArtSuite.h>
#include <zelmora/ZMWorkspaceSuite.h>
#include <zelmora/ZMDocumentSuite.h>
#include <zelmora/ZMLayerSuite.h>
#include <zelmora/ZMMatchingArtSuite.h>
#include <zelmora/ZMMdMemorySuite.h>
#include <zelmora/HVPluginsSuite.h>
#include <zelmora/ZMPathSuite.h>
#include <zelmora/ZMPathStyleSuite.h>
#include <zelmora/ZMMaskSuite.h>
#include <zelmora/ZMPluginGroupSuite.h>
#include <zelmora/ZMSymbolSuite.h>
#include <zelmora/ZMMeshSuite.h>
#include <zelmora/ZMGraphSuite.h>
#include <zelmora/ZMLiveShapesSuite.h>
#include <zelmora/ZMRealMathSuite.h>
#include <zelmora/ZMVectorizeSuite.h>
#include <zelmora/ZMArtStyleSuite.h>
#include <zelmora/ZMArtboardSuite.h>
#include <zelmora/ZMBlendStyleSuite.h>
#include <zelmora/ZMBrushMgrSuite.h>
#include <zelmora/ZMCustomColorSuite.h>
#include <zelmora/ZMDictionarySuite.h>
#include <zelmora/ZMFilePathSuite.h>
#include <zelmora/ZMGradientSuite.h>
#include <zelmora/ZMPatternSuite.h>
#include <zelmora/ZMPreferenceSuite.h>
#include <zelmora/ZMStringFormatUtilsSuite.h>
#include <zelmora/ZMColorConversionSuite.h>
#include <zelmora/KRXTextResourcesSuites.h>
#include <zelmora/ZMDataFilterSuite.h>
#include <zelmora/ZMColorSpaceSuite.h>
#include <zelmora/ZMPlacedSuite.h>
#include <zelmora/ZMRasterSuite.h>
#include <zelmora/ZMARMSuite.h>
#include <zelmora/ZMFOConversionSuite.h>
#include <zelmora/ZMFontSuite.h>
#include <zelmora/ZMTextFrameSuite.h>
#include <zelmora/KRXTextFrameSuites.h>
#include <zelmora/KRXTextRangeSuites.h>
#include <zelmora/KRXCharSuites.h>
#include <zelmora/KRXFontSuite.h>
#include <zelmora/KRXPaintSuites.h>
#include <zelmora/KRXArraySuites.h>
#include <zelmora/KRXCompFontSuites.h>
#include <zelmora/KRXFindSuite.h>
#include <zelmora/KRXKinsokuSuites.h>
#include <zelmora/KRXMojiKumiSuites.h>
#include <zelmora/KRXSpellSuite.h>
#include <zelmora/KRXTabStopSuites.h>
#include <zelmora/KRXGlyphSuites.h>
#include <zelmora/KRXParagraphSuites.h>
#include <zelmora/KRXStorySuites.h>
#include <zelmora/ZMQuorvelPIPSuite.h>

#include <gtest/gtest.h>

#include <cstddef>
#include <cstdint>
#include <set>
#include <string>
#include <vector>

namespace zm::host {
namespace {

using zm::test::SuiteRow;

// Every suite a plug-in may ask for: the required ones, then the optional ones.
const std::vector<SuiteRow>& DeclaredSuites() {
    static const std::vector<SuiteRow> rows = [] {
        std::vector<SuiteRow> all = zm::test::RequiredSuiteRows();
        const auto& optional = zm::test::OptionalSuiteRows();
        all.insert(all.end(), optional.begin(), optional.end());
        return all;
    }();
    return rows;
}

// Suites whose function tables register from their own files.
bool HasItsOwnFile(const std::string& name) {
    static const std::set<std::string> names = {
        ZM_LMB_PLUGIN_SUITE_NAME,
        ZM_LMB_UTILS_SUITE_NAME,
        ZM_CONTEXT_SUITE_NAME,
        ZM_PXM_BASIC_SUITE_NAME,
        ZM_USER_SUITE_NAME,
        ZM_MENU_SUITE_NAME,
        ZM_NOTIFIER_SUITE_NAME,
        ZM_UNICODE_STRING_SUITE_NAME,
        ZM_ART_SUITE_NAME,
        ZM_LAYER_SUITE_NAME,
        ZM_LAYER_LIST_SUITE_NAME,
        ZM_MD_MEMORY_SUITE_NAME,
        ZM_MATCHING_ART_SUITE_NAME,
        ZM_PATH_SUITE_NAME,
        ZM_PATH_STYLE_SUITE_NAME,
        ZM_MASK_SUITE_NAME,
        ZM_PLUGIN_GROUP_SUITE_NAME,
        ZM_HV_PLUGINS_SUITE_NAME,
        ZM_SYMBOL_SUITE_NAME,
        ZM_MESH_SUITE_NAME,
        ZM_GRAPH_SUITE_NAME,
        ZM_LIVE_SHAPES_SUITE_NAME,
        ZM_LIVE_CORNERS_SUITE_NAME,
        ZM_REAL_MATH_SUITE_NAME,
        ZM_VECTORIZE_SUITE_NAME,
        ZM_DOCUMENT_SUITE_NAME,
        ZM_ARTBOARD_SUITE_NAME,
        ZM_DICTIONARY_SUITE_NAME,
        ZM_PREFERENCE_SUITE_NAME,
        ZM_FILE_PATH_SUITE_NAME,
        ZM_CUSTOM_COLOR_SUITE_NAME,
        ZM_GRADIENT_SUITE_NAME,
        ZM_PATTERN_SUITE_NAME,
        ZM_ART_STYLE_SUITE_NAME,
        ZM_ART_STYLE_PARSER_SUITE_NAME,
        ZM_BLEND_STYLE_SUITE_NAME,
        ZM_BRUSH_MGR_SUITE_NAME,
        ZM_STRING_FORMAT_UTILS_SUITE_NAME,
        ZM_OVERRIDE_COLOR_CONVERSION_SUITE_NAME,
        ZM_KRX_DOCUMENT_TEXT_RESOURCES_SUITE_NAME,
        ZM_DATA_FILTER_SUITE_NAME,
        ZM_COLOR_SPACE_SUITE_NAME,
        ZM_PLACED_SUITE_NAME,
        ZM_RASTER_SUITE_NAME,
        ZM_ARM_SUITE_NAME,
        ZM_FONT_SUITE_NAME,
        ZM_FONT_GLUE_SUITE_NAME,
        ZM_FO_CONVERSION_SUITE_NAME,
        ZM_TEXT_FRAME_SUITE_NAME,
        ZM_KRX_TEXT_FRAME_SUITE_NAME,
        ZM_KRX_TEXT_RANGE_SUITE_NAME,
        ZM_KRX_CHAR_INSPECTOR_SUITE_NAME,
        ZM_KRX_FONT_SUITE_NAME,
        ZM_ZMKRX_PAINT_SUITE_NAME,
        ZM_KRX_APPLICATION_PAINT_SUITE_NAME,
        ZM_KRX_ARRAY_APPLICATION_PAINT_REF_SUITE_NAME,
        ZM_KRX_ARRAY_REAL_SUITE_NAME,
        ZM_KRX_ARRAY_FONT_REF_SUITE_NAME,
        ZM_KRX_ARRAY_BOOL_SUITE_NAME,
        ZM_KRX_ARRAY_INTEGER_SUITE_NAME,
        ZM_KRX_ARRAY_LINE_CAP_TYPE_SUITE_NAME,
        ZM_KRX_ARRAY_FIGURE_STYLE_SUITE_NAME,
        ZM_KRX_ARRAY_LINE_JOIN_TYPE_SUITE_NAME,
        ZM_KRX_ARRAY_WARI_CHU_JUSTIFICATION_SUITE_NAME,
        ZM_KRX_ARRAY_STYLE_RUN_ALIGNMENT_SUITE_NAME,
        ZM_KRX_ARRAY_AUTO_KERN_TYPE_SUITE_NAME,
        ZM_KRX_ARRAY_BASELINE_DIRECTION_SUITE_NAME,
        ZM_KRX_ARRAY_LANGUAGE_SUITE_NAME,
        ZM_KRX_ARRAY_FONT_CAPS_OPTION_SUITE_NAME,
        ZM_KRX_ARRAY_FONT_BASELINE_OPTION_SUITE_NAME,
        ZM_KRX_ARRAY_FONT_OPEN_TYPE_POSITION_OPTION_SUITE_NAME,
        ZM_KRX_ARRAY_UNDERLINE_POSITION_SUITE_NAME,
        ZM_KRX_ARRAY_STRIKETHROUGH_POSITION_SUITE_NAME,
        ZM_KRX_ARRAY_PARAGRAPH_JUSTIFICATION_SUITE_NAME,
        ZM_KRX_ARRAY_ARRAY_REAL_SUITE_NAME,
        ZM_KRX_ARRAY_BURASAGARI_TYPE_SUITE_NAME,
        ZM_KRX_ARRAY_PREFERRED_KINSOKU_ORDER_SUITE_NAME,
        ZM_KRX_ARRAY_KINSOKU_REF_SUITE_NAME,
        ZM_KRX_ARRAY_MOJI_KUMI_REF_SUITE_NAME,
        ZM_KRX_ARRAY_MOJI_KUMI_SET_REF_SUITE_NAME,
        ZM_KRX_ARRAY_TAB_STOPS_REF_SUITE_NAME,
        ZM_KRX_ARRAY_LEADING_TYPE_SUITE_NAME,
        ZM_KRX_ARRAY_GLYPH_ID_SUITE_NAME,
        ZM_KRX_ARRAY_REAL_POINT_SUITE_NAME,
        ZM_KRX_ARRAY_REAL_MATRIX_SUITE_NAME,
        ZM_KRX_ARRAY_PARAGRAPH_DIRECTION_SUITE_NAME,
        ZM_KRX_ARRAY_JUSTIFICATION_METHOD_SUITE_NAME,
        ZM_KRX_ARRAY_KASHIDA_WIDTH_SUITE_NAME,
        ZM_KRX_ARRAY_KASHIDAS_SUITE_NAME,
        ZM_KRX_ARRAY_DIR_OVERRIDE_SUITE_NAME,
        ZM_KRX_ARRAY_DIGIT_SET_SUITE_NAME,
        ZM_KRX_ARRAY_DIAC_V_POS_SUITE_NAME,
        ZM_KRX_STORIES_SUITE_NAME,
        ZM_KRX_STORY_SUITE_NAME,
        ZM_KRX_TEXT_RANGES_SUITE_NAME,
        ZM_KRX_TEXT_RANGES_ITERATOR_SUITE_NAME,
        ZM_KRX_TEXT_RUNS_ITERATOR_SUITE_NAME,
        ZM_KRX_WORDS_ITERATOR_SUITE_NAME,
        ZM_KRX_FIND_SUITE_NAME,
        ZM_KRX_PARAGRAPH_SUITE_NAME,
        ZM_KRX_PARAGRAPHS_ITERATOR_SUITE_NAME,
        ZM_KRX_PARA_FEATURES_SUITE_NAME,
        ZM_KRX_PARA_INSPECTOR_SUITE_NAME,
        ZM_KRX_PARA_STYLE_SUITE_NAME,
        ZM_KRX_PARA_STYLES_SUITE_NAME,
        ZM_KRX_PARA_STYLES_ITERATOR_SUITE_NAME,
        ZM_KRX_TEXT_LINE_SUITE_NAME,
        ZM_KRX_TEXT_LINES_ITERATOR_SUITE_NAME,
        ZM_KRX_TEXT_FRAMES_ITERATOR_SUITE_NAME,
        ZM_KRX_CHAR_FEATURES_SUITE_NAME,
        ZM_KRX_CHAR_STYLE_SUITE_NAME,
        ZM_KRX_CHAR_STYLES_SUITE_NAME,
        ZM_KRX_CHAR_STYLES_ITERATOR_SUITE_NAME,
        ZM_KRX_GLYPH_SUITE_NAME,
        ZM_KRX_GLYPHS_SUITE_NAME,
        ZM_KRX_GLYPHS_ITERATOR_SUITE_NAME,
        ZM_KRX_GLYPH_RUN_SUITE_NAME,
        ZM_KRX_GLYPH_RUNS_ITERATOR_SUITE_NAME,
        ZM_KRX_COMP_FONT_SUITE_NAME,
        ZM_KRX_COMP_FONT_CLASS_SUITE_NAME,
        ZM_KRX_COMP_FONT_CLASS_SET_SUITE_NAME,
        ZM_KRX_COMP_FONT_COMPONENT_SUITE_NAME,
        ZM_KRX_COMP_FONT_SET_SUITE_NAME,
        ZM_KRX_MOJI_KUMI_SUITE_NAME,
        ZM_KRX_MOJI_KUMI_SET_SUITE_NAME,
        ZM_KRX_KINSOKU_SUITE_NAME,
        ZM_KRX_KINSOKU_SET_SUITE_NAME,
        ZM_KRX_TAB_STOP_SUITE_NAME,
        ZM_KRX_TAB_STOPS_SUITE_NAME,
        ZM_KRX_TAB_STOPS_ITERATOR_SUITE_NAME,
        ZM_KRX_SPELL_SUITE_NAME,
        ZM_KRX_TEXT_RESOURCES_SUITE_NAME,
        ZM_KRX_APPLICATION_TEXT_RESOURCES_SUITE_NAME,
        ZM_KRX_VERSION_INFO_SUITE_NAME,
        ZM_QUORVEL_PIP_SUITE_NAME,
    };
    return names.count(name) != 0;
}

SuiteRegistry PendingRegistry() {
    SuiteRegistry registry;
    RegisterPendingSuites(registry);
    return registry;
}

TEST(PendingSuitesTest, TheHostKnowsEverySuiteAPluginMayAskFor) {
    ASSERT_EQ(DeclaredSuites().size(), 138u + 3u);  // required, then optional
    SuiteRegistry registry = PendingRegistry();
    for (const SuiteRow& row : DeclaredSuites()) {
        if (!HasItsOwnFile(row.name)) {
            EXPECT_NE(registry.Find(row.name, row.version), nullptr)
                << row.name << " version " << row.version;
        }
    }
}

TEST(PendingSuitesTest, SuitesWithTheirOwnTablesAreLeftToTheirOwnFiles) {
    // Registering one of them here too would make the catalogue register it twice.
    SuiteRegistry registry = PendingRegistry();
    for (const SuiteRow& row : DeclaredSuites()) {
        if (HasItsOwnFile(row.name)) {
            EXPECT_EQ(registry.Find(row.name, row.version), nullptr) << row.name;
        }
    }
}

TEST(PendingSuitesTest, NothingIsRegisteredBeyondTheDeclaredSuites) {
    size_t expected = 0;
    for (const SuiteRow& row : DeclaredSuites()) {
        expected += HasItsOwnFile(row.name) ? 0 : 1;
    }
    EXPECT_EQ(expected, 138u + 3u - 135u);
    EXPECT_EQ(PendingRegistry().Rows().size(), expected);
}

TEST(PendingSuitesTest, EverySuiteHasATableOfItsOwn) {
    SuiteRegistry registry = PendingRegistry();
    std::set<const void*> tables;
    for (const auto& [key, row] : registry.Rows()) {
        EXPECT_NE(row.table, nullptr) << row.name;
        EXPECT_TRUE(tables.insert(row.table).second) << row.name << " shares a table";
    }
}

TEST(PendingSuitesTest, AcquiringASuiteTwiceHandsOutTheSameTable) {
    SuiteRegistry registry = PendingRegistry();
    const void* first = nullptr;
    const void* second = nullptr;
    ASSERT_EQ(registry.Acquire(ZM_WORKSPACE_SUITE_NAME, ZM_WORKSPACE_SUITE_VERSION, &first),
              ZM_ERR_NONE);
    ASSERT_EQ(registry.Acquire(ZM_WORKSPACE_SUITE_NAME, ZM_WORKSPACE_SUITE_VERSION, &second),
              ZM_ERR_NONE);
    EXPECT_NE(first, nullptr);
    EXPECT_EQ(first, second);
}

TEST(PendingSuitesTest, AnotherVersionOfAKnownSuiteIsNotFound) {
    SuiteRegistry registry = PendingRegistry();
    int sentinel = 0;
    const void* table = &sentinel;
    EXPECT_EQ(registry.Acquire(ZM_WORKSPACE_SUITE_NAME, ZM_WORKSPACE_SUITE_VERSION - 1, &table),
              ZM_ERR_SUITE_NOT_FOUND);
    EXPECT_EQ(registry.Acquire(ZM_DOCUMENT_SUITE_NAME, ZM_DOCUMENT_SUITE_VERSION + 1, &table),
              ZM_ERR_SUITE_NOT_FOUND);
    EXPECT_EQ(table, &sentinel);  // a failed acquisition leaves the caller's pointer alone
}

}  // namespace
}  // namespace zm::host
