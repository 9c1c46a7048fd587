#include <stats/DocumentContentStatistics.hpp>

#include "plugins/tolvane/stats/StatisticsFixture.hpp"

#include <panel/PanelCategories.hpp>
#include <stats/StatisticsRecord.hpp>
#include <survey/ArtWalk.hpp>

#include <gtest/gtest.h>
#include <zelmora/ZMMdMemorySuite.h>

#include <cstring>
#include <string>
#include <utility>
#include <vector>

namespace zm::test {
namespace {

using LogEntries = std::vector<std::pair<std::string, std::string>>;

using DocumentContentStatisticsTest = StatisticsFixture;

// The 31 keys in logged order with the values of a document with nothing counted.
LogEntries NothingCounted(const std::string& colorModel) {
    LogEntries entries;
    for (const char* key :
         {"Artboards", "Symbol Patterns", "TopLevelLayers", "OpenPaths", "ClosedPaths",
          "PointObjects", "CompoundPaths", "CompoundShapes", "GradientMeshes", "PointTypeObjects",
          "AreaTypeObjects", "TypeOnPathObjects", "ClippingMasks", "OpacityMasks",
          "GrayScaleObjects", "GraphicStylesUsed", "BrushesUsed", "SpotColorsUsed",
          "PatternObjectsUsed", "GlobalProcessColorsUsed", "GradientObjectsUsed", "FontsUsed",
          "LinkedImages", "EmbeddedImages", "TracingObjects", "BlendObjects", "FlareObjects",
          "EnvelopeObjects", "GraphObjects"}) {
        entries.emplace_back(key, "0");
    }
    entries.emplace_back("Fontvane Font in document", "No");
    entries.emplace_back("Color Model", colorModel);
    return entries;
}

void Set(LogEntries& entries, const std::string& key, const std::string& value) {
    for (auto& entry : entries) {
        if (entry.first == key) {
            entry.second = value;
            return;
        }
    }
    ADD_FAILURE() << "no key " << key;
}

std::string ValueOf(const LogEntries& entries, const std::string& key) {
    for (const auto& entry : entries) {
        if (entry.first == key) {
            return entry.second;
        }
    }
    return "(none)";
}

TEST_F(DocumentContentStatisticsTest, AnEmptyDocumentLogsZeroEverywhereAndItsColorModel) {
    const auto& groups = LogFixture("empty.svg");
    ASSERT_EQ(groups.size(), 1u);  // no live shapes: no shape group
    EXPECT_EQ(groups[0].name, "Document Content Information");
    // Nothing counted, but the document still has its one default artboard and its one
    // layer; zm:color-model="cmyk" is model 2.
    LogEntries expected = NothingCounted("CMYK");
    Set(expected, "Artboards", "1");
    Set(expected, "TopLevelLayers", "1");
    EXPECT_EQ(groups[0].entries, expected);
}

TEST_F(DocumentContentStatisticsTest, OnlyClosedPathsLogNoOpenPathAndEveryPathAsClosed) {
    const auto& groups = LogFixture("closed-paths.svg");
    ASSERT_FALSE(groups.empty());
    const LogEntries& entries = groups[0].entries;
    // A rect, a polygon and a path ending in Z: three paths, all closed.
    EXPECT_EQ(ValueOf(entries, "OpenPaths"), "0");
    EXPECT_EQ(ValueOf(entries, "ClosedPaths"), "3");
    // 4 anchors for the rect, 3 for the polygon, 3 for the path (its closing point is its
    // first).
    EXPECT_EQ(ValueOf(entries, "PointObjects"), "10");
}

TEST_F(DocumentContentStatisticsTest, GlobalProcessColorsAreCountedOnceEachAndApartFromSpots) {
    const auto& groups = LogFixture("swatches.svg");
    ASSERT_FALSE(groups.empty());
    const LogEntries& entries = groups[0].entries;
    // Leaf (twice) and Sea have no spot mark: two global process colours. Ink Red is a spot.
    EXPECT_EQ(ValueOf(entries, "GlobalProcessColorsUsed"), "2");
    EXPECT_EQ(ValueOf(entries, "SpotColorsUsed"), "1");
}

TEST_F(DocumentContentStatisticsTest, WithoutMemoryForTheRecordANoteNamesThePlaceAndNothingIsLogged) {
    OpenFixture("stats", "closed-paths.svg");
    runtime.faults.FailCall(ZM_MD_MEMORY_SUITE_NAME, 1, ZM_ERR_NO_MEMORY);  // NewHandleClear
    tolvane::LogDocumentContentStatistics();
    runtime.faults.Clear();
    EXPECT_TRUE(usage().Groups().empty());
    ASSERT_EQ(runtime.alerts.size(), 1u);
    const std::string& text = runtime.alerts.front().text;
    // Severity 3 is a note; the code -2 prints nothing after "ID = " ("%l" has no letter).
    EXPECT_EQ(text.rfind("Document Info Note:", 0), 0u) << text;
    EXPECT_NE(text.find("\rID =   DoTolvaneDlog:NewHandleClear()"), std::string::npos) << text;
}

TEST_F(DocumentContentStatisticsTest, AColorModelOutsideTheThreeKnownLogsAnEmptyValue) {
    OpenFixture("stats", "closed-paths.svg");
    ASSERT_EQ(tolvane::sDocumentSuite->SetDocumentColorModel(7), ZM_ERR_NONE);
    tolvane::LogDocumentContentStatistics();
    ASSERT_FALSE(usage().Groups().empty());
    const LogEntries& entries = usage().Groups()[0].entries;
    ASSERT_EQ(entries.size(), 31u);
    EXPECT_EQ(entries.back(), (std::pair<std::string, std::string>{"Color Model", ""}));
}

TEST_F(DocumentContentStatisticsTest, EveryKindOfArtIsCountedWhereTheLogShowsIt) {
    const auto& groups = LogFixture("every-kind.svg");
    ASSERT_FALSE(groups.empty());
    LogEntries expected = NothingCounted("RGB");  // no zm:color-model: RGB
    Set(expected, "Artboards", "1");       // the default artboard
    Set(expected, "Symbol Patterns", "1");  // stamp
    Set(expected, "TopLevelLayers", "1");  // Art
    // Paths: wire (open), box, masked, veil (the mask's art is counted like the art), clipper
    // and clipped. The ring's two members are compound-path members and are not matched; the
    // symbol's path is a definition.
    Set(expected, "OpenPaths", "1");
    Set(expected, "ClosedPaths", "5");
    // wire 3 anchors; box, masked, veil and clipper 4 each (unrounded rects); clipped 4 (a
    // circle): 3 + 16 + 4.
    Set(expected, "PointObjects", "23");
    Set(expected, "CompoundPaths", "1");   // ring
    Set(expected, "CompoundShapes", "1");  // shape: "Pathfinder Suite"
    Set(expected, "GradientMeshes", "1");  // meshed
    Set(expected, "PointTypeObjects", "1");  // label: a <text> without a shape is point text
    Set(expected, "ClippingMasks", "1");     // clipper, flagged as the clip group's clip path
    Set(expected, "OpacityMasks", "1");      // masked
    Set(expected, "GrayScaleObjects", "1");  // wire's device-gray stroke; every other paint RGB
    Set(expected, "GradientObjectsUsed", "1");  // Sky, on box
    Set(expected, "FontsUsed", "1");            // label's one family
    Set(expected, "BlendObjects", "1");         // blend
    Set(expected, "FlareObjects", "1");         // flare
    Set(expected, "EnvelopeObjects", "1");      // envelope: "Quorvel Deform Plugin"
    Set(expected, "GraphObjects", "1");         // plot
    EXPECT_EQ(groups[0].entries, expected);
}

TEST_F(DocumentContentStatisticsTest, TheCloseTimeRunLeavesThePanelsSurveyAsItWas) {
    OpenFixture("stats", "every-kind.svg");
    // A panel survey of one path in the Objects category, as a refresh would leave it.
    globals.mode = tolvane::kModeObjects;
    tolvane::PaintKind kinds = 0;
    ASSERT_EQ(tolvane::VisitArt(Handle("wire"), kinds, 0), ZM_ERR_NONE);
    const tolvane::SurveyRecord before = Record();
    const int32_t fontsBefore = tolvane::CountSurveyStrings(tolvane::gSurvey->lists.fontList);
    const int32_t gradientsBefore =
        tolvane::CountSurveyStrings(tolvane::gSurvey->lists.gradientList);
    tolvane::LogDocumentContentStatistics();
    ASSERT_FALSE(usage().Groups().empty());  // the run did count
    EXPECT_EQ(std::memcmp(&before, &Record(), sizeof before), 0);
    EXPECT_EQ(tolvane::CountSurveyStrings(tolvane::gSurvey->lists.fontList), fontsBefore);
    EXPECT_EQ(tolvane::CountSurveyStrings(tolvane::gSurvey->lists.gradientList),
              gradientsBefore);
    EXPECT_EQ(Record().pathCount, 1);  // wire only
}

TEST_F(DocumentContentStatisticsTest, WithoutTheUsageSuiteNothingIsLoggedAndTheBlockGoesBack) {
    OpenFixture("stats", "every-kind.svg");
    const ZMQuorvelPIPSuite* held = tolvane::sQuorvelPipSuite;
    tolvane::sQuorvelPipSuite = nullptr;
    tolvane::LogDocumentContentStatistics();
    tolvane::sQuorvelPipSuite = held;
    EXPECT_TRUE(usage().Groups().empty());
    EXPECT_EQ(tolvane::gStatistics, nullptr);
}

}  // namespace
}  // namespace zm::test
