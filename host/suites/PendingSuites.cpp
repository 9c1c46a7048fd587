#include "suites/SuiteRegistrations.hpp"

#include <zelmora/HVBlocksSuite.h>
#include <zelmora/HVPluginsSuite.h>
#include <zelmora/ZMArtStyleSuite.h>
#include <zelmora/ZMArtSuite.h>
#include <zelmora/ZMArtboardSuite.h>
#include <zelmora/ZMBlendStyleSuite.h>
#include <zelmora/ZMBrushMgrSuite.h>
#include <zelmora/ZMCharacterEncodingSuite.h>
#include <zelmora/ZMColorConversionSuite.h>
#include <zelmora/ZMCountedObjectSuite.h>
#include <zelmora/ZMCustomColorSuite.h>
#include <zelmora/ZMDevUtilsSuite.h>
#include <zelmora/ZMDictionarySuite.h>
#include <zelmora/ZMDocumentSuite.h>
#include <zelmora/ZMFOConversionSuite.h>
#include <zelmora/ZMFilePathSuite.h>
#include <zelmora/ZMGradientSuite.h>
#include <zelmora/ZMGraphSuite.h>
#include <zelmora/ZMLayerSuite.h>
#include <zelmora/ZMLiveEffectSuite.h>
#include <zelmora/ZMLiveShapesSuite.h>
#include <zelmora/ZMMaskSuite.h>
#include <zelmora/ZMMatchingArtSuite.h>
#include <zelmora/ZMMdMemorySuite.h>
#include <zelmora/ZMMeshSuite.h>
#include <zelmora/ZMPathStyleSuite.h>
#include <zelmora/ZMPathSuite.h>
#include <zelmora/ZMPatternSuite.h>
#include <zelmora/ZMPluginGroupSuite.h>
#include <zelmora/ZMPreferenceSuite.h>
#include <zelmora/ZMRealMathSuite.h>
#include <zelmora/ZMStringFormatUtilsSuite.h>
#include <zelmora/ZMSymbolSuite.h>
#include <zelmora/ZMVectorizeSuite.h>
#include <zelmora/ZMWorkspaceSuite.h>

#include <cstdint>

namespace zm::host {

namespace {

// A suite whose operations arrive as the document model grows to hold what they read. Until
// then its table offers no entries, but it is a real table of its own: a plug-in that asks for
// the suite gets it, and gets the same pointer every time.
struct PendingSuiteTable {
    const char* name;
    int32_t version;
};

// Pairs a suite's name and version constants, so a row cannot mix two suites.
#define ZM_SUITE_ROW(suite) {suite##_NAME, suite##_VERSION}

// The required suites in the order plug-ins declare them, then the optional ones. Suites with
// a function table of their own register from their own files and are not listed here.
constexpr PendingSuiteTable kPendingSuites[] = {
    ZM_SUITE_ROW(ZM_CHARACTER_ENCODING_SUITE),
    ZM_SUITE_ROW(ZM_DEV_UTILS_SUITE),
    ZM_SUITE_ROW(ZM_LIVE_EFFECT_SUITE),
    ZM_SUITE_ROW(ZM_WORKSPACE_SUITE),
    ZM_SUITE_ROW(ZM_HV_BLOCKS_SUITE),
    ZM_SUITE_ROW(ZM_COUNTED_OBJECT_SUITE),
};

#undef ZM_SUITE_ROW

}  // namespace

void RegisterPendingSuites(SuiteRegistry& registry) {
    // Each row is its own object, so every suite hands out a pointer no other suite shares.
    for (const PendingSuiteTable& table : kPendingSuites) {
        registry.Add(table.name, table.version, &table);
    }
}

}  // namespace zm::host
