#include <gtest/gtest.h>
#include <zelmora/ZMArtStyleSuite.h>
#include <zelmora/ZMArtSuite.h>
#include <zelmora/ZMLayerSuite.h>
#include <zelmora/ZMMaskSuite.h>
#include <zelmora/ZMMatchingArtSuite.h>
#include <zelmora/ZMMeshSuite.h>
#include <zelmora/ZMPathStyleSuite.h>
#include <zelmora/ZMPathSuite.h>

#include <limits>
#include <memory>
#include <string>
#include <vector>

#include "plugins/tolvane/survey/SurveyWalkFixture.hpp"
#include "support/DocumentBuilder.hpp"

namespace {

using tolvane::SurveyRecord;
using Calls = std::vector<std::string>;

constexpr const char* kProgressText = "begin Document &Info...";

class ArtWalkTest : public zm::test::SurveyWalkFixture {};

// --- Paths -----------------------------------------------------------------------------------

// The figures of each path are in the fixture's comment: square, stroke, zigzag, pane and
// framed are paths (ring is a compound path). Open: stroke and zigzag. Anchors 4 + 2 + 3 + 4 +
// 4 = 17. Length 120 + 75 + 75 + 30 + 60 = 360 pt. pane is the one clipping path.
TEST_F(ArtWalkTest, InTheObjectsCategoryPathsAreCountedWithAnchorsLengthAndClipping) {
    OpenWalkFixture("paths.svg");
    const SurveyRecord& record = Survey(3);
    EXPECT_EQ(record.pathCount, 5);
    EXPECT_EQ(record.openPathCount, 2);
    EXPECT_EQ(record.pointCount, 17);
    EXPECT_NEAR(record.totalPathLength, 360.0, 1e-9);
    EXPECT_EQ(record.clipMaskCount, 1);
    EXPECT_EQ(record.compoundPathCount, 1);
}

// Seven matches: square, stroke, zigzag, ring, the clip group, pane, framed. ring's two
// members are left out by the request, so they are neither visited nor counted as paths.
TEST_F(ArtWalkTest, MembersOfACompoundPathAreNeitherMatchedNorCountedAsPaths) {
    OpenWalkFixture("paths.svg");
    const SurveyRecord& record = Survey(3);
    EXPECT_EQ(progress.calls, (Calls{kProgressText, "update 0/7", "update 4/7", "end"}));
    EXPECT_EQ(record.pathCount, 5);
}

// Paths are only visited for the Objects category; the compound path counts everywhere.
TEST_F(ArtWalkTest, OutsideTheObjectsCategoryPathsAreNotVisited) {
    OpenWalkFixture("paths.svg");
    const SurveyRecord& record = Survey(4);
    EXPECT_EQ(record.pathCount, 0);
    EXPECT_EQ(record.openPathCount, 0);
    EXPECT_EQ(record.pointCount, 0);
    EXPECT_EQ(record.totalPathLength, 0.0);
    EXPECT_EQ(record.clipMaskCount, 0);
    EXPECT_EQ(record.compoundPathCount, 1);
}

// square's 4 anchors take INT32_MAX - 3 past the largest count: -1. stroke's 2 anchors would
// make it 1 if they were added; every later path leaves it at -1.
TEST_F(ArtWalkTest, APointCountThatOverflowsStaysMinusOneForTheRestOfTheSurvey) {
    OpenWalkFixture("paths.svg");
    globals.mode = 3;
    tolvane::gSurvey->record.pointCount = std::numeric_limits<int32_t>::max() - 3;
    ASSERT_EQ(tolvane::RunSurvey(), ZM_ERR_NONE);
    EXPECT_EQ(tolvane::gSurvey->record.pointCount, -1);
    EXPECT_EQ(tolvane::gSurvey->record.pathCount, 5);  // the other figures go on
}

// A total that is already negative is left alone: no path adds to it.
TEST_F(ArtWalkTest, APathLengthThatOverflowedIsNotAddedTo) {
    OpenWalkFixture("paths.svg");
    globals.mode = 3;
    tolvane::gSurvey->record.totalPathLength = -1.0;
    ASSERT_EQ(tolvane::RunSurvey(), ZM_ERR_NONE);
    EXPECT_EQ(tolvane::gSurvey->record.totalPathLength, -1.0);
}

// The path is counted before its segments are asked for; a compound path is no path.
TEST_F(ArtWalkTest, VisitingArtThatIsNoPathAsAPathGivesTheHostsCode) {
    OpenWalkFixture("paths.svg");
    EXPECT_EQ(tolvane::VisitPath(Handle("ring")), ZM_ERR_WRONG_ART_TYPE);
    EXPECT_EQ(tolvane::gSurvey->record.pathCount, 1);
    EXPECT_EQ(tolvane::gSurvey->record.pointCount, 0);
}

// --- Categories ------------------------------------------------------------------------------

// What every-kind.svg gives in each category, selection-only off. Its one path box, the
// masked path and the mask's path veil are paths only in category 3 (veil only because the
// mask is walked there). The compound path, symbol instance, chart and graph count in every
// category where they are matched: all but 9 and 12, which match text frames and foreign
// objects only. The foreign object counts in 3, 6, 9 and 12; the mesh in 3 and 6; the blend
// and the opacity mask in 3. Saving runs everything, but the request still follows the
// category.
struct CategoryCounts {
    int16_t mode;
    int32_t saving;
    int32_t paths, compoundPaths, symbolInstances, charts, graphs, foreignObjects, meshes, blends,
        opacityMasks;
};

const CategoryCounts kCategoryCounts[] = {
    {2, 0, 0, 1, 1, 1, 1, 0, 0, 0, 0},   // Document
    {3, 0, 3, 1, 1, 1, 1, 1, 1, 1, 1},   // Objects: everything
    {4, 0, 0, 1, 1, 1, 1, 0, 0, 0, 0},   // Graphic Styles
    {5, 0, 0, 1, 1, 1, 1, 0, 0, 0, 0},   // Brushes
    {6, 0, 0, 1, 1, 1, 1, 1, 1, 0, 0},   // Spot Color Objects: foreign object and mesh
    {7, 0, 0, 1, 1, 1, 1, 0, 0, 0, 0},   // Pattern Objects
    {8, 0, 0, 1, 1, 1, 1, 0, 0, 0, 0},   // Gradient Objects
    {9, 0, 0, 0, 0, 0, 0, 1, 0, 0, 0},   // Fonts: only the foreign object is matched
    {10, 0, 0, 1, 1, 1, 1, 0, 0, 0, 0},  // Linked Images
    {11, 0, 0, 1, 1, 1, 1, 0, 0, 0, 0},  // Embedded Images
    {12, 0, 0, 0, 0, 0, 0, 1, 0, 0, 0},  // Font Details: as Fonts
    {2, 1, 3, 1, 1, 1, 1, 1, 1, 1, 1},   // saving from Document: everything
    {9, 1, 0, 0, 0, 0, 0, 1, 0, 0, 0},   // saving from Fonts: only the foreign object is matched
};

TEST_F(ArtWalkTest, EachKindOfArtCountsInItsOwnCategories) {
    OpenWalkFixture("every-kind.svg");
    for (const CategoryCounts& expected : kCategoryCounts) {
        SCOPED_TRACE("mode " + std::to_string(expected.mode) + " saving " +
                     std::to_string(expected.saving));
        globals.saving = expected.saving;
        const SurveyRecord& record = Survey(expected.mode);
        EXPECT_EQ(record.pathCount, expected.paths);
        EXPECT_EQ(record.compoundPathCount, expected.compoundPaths);
        EXPECT_EQ(record.symbolInstanceCount, expected.symbolInstances);
        EXPECT_EQ(record.chartCount, expected.charts);
        EXPECT_EQ(record.graphCount, expected.graphs);
        EXPECT_EQ(record.foreignObjectCount, expected.foreignObjects);
        EXPECT_EQ(record.meshCount, expected.meshes);
        EXPECT_EQ(record.blendCount, expected.blends);
        EXPECT_EQ(record.opacityMaskCount, expected.opacityMasks);
    }
}

// Linked Images has nothing to do with compound paths, which are counted all the same.
TEST_F(ArtWalkTest, ACompoundPathCountsInTheLinkedImagesCategory) {
    OpenWalkFixture("paths.svg");
    EXPECT_EQ(Survey(10).compoundPathCount, 1);
}

// In Fonts only the two text frames and the foreign object are matched (three matches, one
// progress step): none of the ten paths, the compound path or the chart is seen; both frames
// are surveyed.
TEST_F(ArtWalkTest, TheFontsCategoryMatchesOnlyTextFramesAndForeignObjects) {
    OpenWalkFixture("mode-nine.svg");
    const SurveyRecord& record = Survey(9);
    EXPECT_EQ(progress.calls, (Calls{kProgressText, "update 0/3", "end"}));
    EXPECT_EQ(record.pathCount, 0);
    EXPECT_EQ(record.compoundPathCount, 0);
    EXPECT_EQ(record.chartCount, 0);
    EXPECT_EQ(record.foreignObjectCount, 1);
    EXPECT_EQ(record.typeObjectCount, 2);
}

// Built by hand: the importer makes unknown art only for graphs. One graph, one unknown
// object that is no graph.
TEST_F(ArtWalkTest, OnlyUnknownArtThatIsAGraphCountsAsAGraph) {
    auto document = std::make_unique<zm::host::document::Document>();
    zm::host::document::Layer& layer = zm::test::AddLayer(*document, "Layer 1");
    zm::test::AddArt(*layer.root, zm::host::document::ArtType::Unknown, "graph").graph = true;
    zm::test::AddArt(*layer.root, zm::host::document::ArtType::Unknown, "other");
    Open(std::move(document));
    EXPECT_EQ(Survey(2).graphCount, 1);
}

// --- Paint ----------------------------------------------------------------------------------

// painted.svg: faded, a half-transparent group, holds ink, a CMYK-filled path. The style check
// runs in categories 3 to 8 (and while saving): one CMYK object, one transparent group.
struct StyleCounts {
    int16_t mode;
    int32_t saving;
    int32_t cmykObjects, transparentGroups;
};

const StyleCounts kStyleCounts[] = {
    {2, 0, 0, 0},   // Document
    {3, 0, 1, 1},   // Objects
    {4, 0, 1, 1},   // Graphic Styles
    {5, 0, 1, 1},   // Brushes
    {6, 0, 1, 1},   // Spot Color Objects
    {7, 0, 1, 1},   // Pattern Objects
    {8, 0, 1, 1},   // Gradient Objects
    {10, 0, 0, 0},  // Linked Images
    {11, 0, 0, 0},  // Embedded Images
    {2, 1, 1, 1},   // saving from Document
};

TEST_F(ArtWalkTest, PaintAndTransparencyAreCheckedInTheCategoriesThatShowThem) {
    OpenWalkFixture("painted.svg");
    for (const StyleCounts& expected : kStyleCounts) {
        SCOPED_TRACE("mode " + std::to_string(expected.mode) + " saving " +
                     std::to_string(expected.saving));
        globals.saving = expected.saving;
        const SurveyRecord& record = Survey(expected.mode);
        EXPECT_EQ(record.cmykObjectCount, expected.cmykObjects);
        EXPECT_EQ(record.transparentGroupCount, expected.transparentGroups);
    }
}

// The style of faded, the first match, cannot be had: the survey ends before anything of it
// is counted, and ink is never seen.
TEST_F(ArtWalkTest, AFailingStyleCheckEndsTheSurvey) {
    OpenWalkFixture("painted.svg");
    runtime.faults.FailCall(ZM_ART_STYLE_SUITE_NAME, 0, ZM_ERR_INTERNAL);
    EXPECT_TRUE(AllZero(Survey(3)));
}

// The mesh's colours are RGB, CMYK, gray. The marks are kept for the whole mesh and counted
// after each colour: RGB after all three (3), CMYK after the last two (2), gray after the last
// (1). The mesh inside veiled's mask counts as a mesh, but its solid colours set no mark.
TEST_F(ArtWalkTest, AMeshCountsTheColoursSeenSoFarAfterEachColour) {
    OpenWalkFixture("mesh.svg");
    const SurveyRecord& record = Survey(3);
    EXPECT_EQ(record.meshCount, 2);
    EXPECT_EQ(record.rgbObjectCount, 3);
    EXPECT_EQ(record.cmykObjectCount, 2);
    EXPECT_EQ(record.grayObjectCount, 1);
    EXPECT_EQ(record.opacityMaskCount, 1);
}

// Spot Color Objects surveys meshes too; masks are not looked into there.
TEST_F(ArtWalkTest, TheSpotColorCategoryCountsTheMeshesColoursToo) {
    OpenWalkFixture("mesh.svg");
    const SurveyRecord& record = Survey(6);
    EXPECT_EQ(record.meshCount, 1);
    EXPECT_EQ(record.rgbObjectCount, 3);
}

// A mesh whose colours cannot be listed is still a mesh, and the survey goes on to veiled.
TEST_F(ArtWalkTest, AMeshWhoseColoursCannotBeListedIsStillCounted) {
    OpenWalkFixture("mesh.svg");
    runtime.faults.FailCall(ZM_MESH_SUITE_NAME, 1, ZM_ERR_INTERNAL);
    const SurveyRecord& record = Survey(3);
    EXPECT_EQ(record.meshCount, 2);
    EXPECT_EQ(record.rgbObjectCount, 0);
    EXPECT_EQ(record.opacityMaskCount, 1);
}

// --- Plug-in groups and masks ----------------------------------------------------------------

// Two blends, one group of each other kind; the symbolism group and the group whose name
// differs in case count nowhere. The blends' four circles are paths.
TEST_F(ArtWalkTest, PlugInGroupsCountByThePlugInThatMadeThem) {
    OpenWalkFixture("plugin-groups.svg");
    const SurveyRecord& record = Survey(3);
    EXPECT_EQ(record.blendCount, 2);
    EXPECT_EQ(record.compoundShapeCount, 1);
    EXPECT_EQ(record.livePaintGroupCount, 1);
    EXPECT_EQ(record.envelopeCount, 1);
    EXPECT_EQ(record.flareCount, 1);
    EXPECT_EQ(record.tracingObjectCount, 1);
    EXPECT_EQ(record.symbolSetCount, 0);
    EXPECT_EQ(record.pathCount, 4);
}

// Plug-in groups are classified for the Objects category only.
TEST_F(ArtWalkTest, AnEnvelopeCountsInTheObjectsCategoryButNotInGraphicStyles) {
    OpenWalkFixture("plugin-groups.svg");
    EXPECT_EQ(Survey(3).envelopeCount, 1);
    EXPECT_EQ(Survey(4).envelopeCount, 0);
}

// masked, wrapped and inner (inside wrapped's mask) carry masks: 3. Paths: masked and
// wrapped; ink in masked's mask; the blend's two circles and inner in wrapped's mask; ink
// again in inner's mask: 7. The blend inside the mask is classified like any other.
TEST_F(ArtWalkTest, OpacityMasksAreCountedAndTheirArtIsSurveyedDepthFirst) {
    OpenWalkFixture("masks.svg");
    const SurveyRecord& record = Survey(3);
    EXPECT_EQ(record.opacityMaskCount, 3);
    EXPECT_EQ(record.pathCount, 7);
    EXPECT_EQ(record.blendCount, 1);
}

// ink is filled with CMYK, but inside a mask solid colours mark nothing. masked and wrapped
// are filled black (RGB) by default: two RGB objects.
TEST_F(ArtWalkTest, PaintInsideAnOpacityMaskMarksNoSolidColour) {
    OpenWalkFixture("masks.svg");
    const SurveyRecord& record = Survey(3);
    EXPECT_EQ(record.cmykObjectCount, 0);
    EXPECT_EQ(record.rgbObjectCount, 2);
}

// masked alone: its mask, the mask's path ink (CMYK) and masked itself (black, RGB) are
// visited; of the two paints only masked's marks the accumulator.
TEST_F(ArtWalkTest, AMaskedPathsMaskIsCountedAndItsPathSurveyedWithoutItsSolidColour) {
    OpenWalkFixture("masks.svg");
    globals.mode = 3;
    tolvane::PaintKind paintKinds = 0;
    ASSERT_EQ(tolvane::VisitArt(Handle("masked"), paintKinds, 0), ZM_ERR_NONE);
    const SurveyRecord& record = tolvane::gSurvey->record;
    EXPECT_EQ(record.opacityMaskCount, 1);
    EXPECT_EQ(record.pathCount, 2);
    EXPECT_EQ(record.cmykObjectCount, 0);
    EXPECT_EQ(paintKinds, tolvane::kPaintRgb);
}

TEST_F(ArtWalkTest, OpacityMasksAreNotLookedForOutsideTheObjectsCategory) {
    OpenWalkFixture("masks.svg");
    const SurveyRecord& record = Survey(4);
    EXPECT_EQ(record.opacityMaskCount, 0);
    EXPECT_EQ(record.blendCount, 0);
}

// The same figures as in the Objects category.
TEST_F(ArtWalkTest, SavingLooksForOpacityMasksInAnyCategory) {
    OpenWalkFixture("masks.svg");
    globals.saving = 1;
    const SurveyRecord& record = Survey(2);
    EXPECT_EQ(record.opacityMaskCount, 3);
    EXPECT_EQ(record.pathCount, 7);
}

TEST_F(ArtWalkTest, ArtWithoutAMaskHasNothingToVisit) {
    OpenWalkFixture("every-kind.svg");
    globals.mode = 3;
    tolvane::PaintKind paintKinds = 0;
    EXPECT_EQ(tolvane::VisitMaskedArt(Handle("box"), paintKinds), ZM_ERR_NONE);
    EXPECT_TRUE(AllZero(tolvane::gSurvey->record));
}

// --- Selection -------------------------------------------------------------------------------

TEST_F(ArtWalkTest, SelectionOnlyWithNothingSelectedCountsNothing) {
    OpenWalkFixture("every-kind.svg");
    globals.selectionOnly = 1;
    const SurveyRecord& record = Survey(3);
    EXPECT_TRUE(AllZero(record));
    EXPECT_EQ(progress.calls, (Calls{kProgressText, "end"}));  // no match, no step
}

// square is a path of 4 anchors; selecting ring selects its members too, but they are left
// out as members.
TEST_F(ArtWalkTest, SelectionOnlySurveysTheSelectedArt) {
    OpenWalkFixture("paths.svg");
    Select("square");
    Select("ring");
    globals.selectionOnly = 1;
    const SurveyRecord& record = Survey(3);
    EXPECT_EQ(record.pathCount, 1);
    EXPECT_EQ(record.pointCount, 4);
    EXPECT_EQ(record.compoundPathCount, 1);
}

// Selecting blendA selects its result group and its two circles.
TEST_F(ArtWalkTest, ASelectedGroupBringsWhatItHolds) {
    OpenWalkFixture("plugin-groups.svg");
    Select("blendA");
    globals.selectionOnly = 1;
    const SurveyRecord& record = Survey(3);
    EXPECT_EQ(record.blendCount, 1);
    EXPECT_EQ(record.pathCount, 2);
}

// All five paths, selected or not.
TEST_F(ArtWalkTest, WithSelectionOnlyOffTheSelectionDoesNotMatter) {
    OpenWalkFixture("paths.svg");
    Select("square");
    EXPECT_EQ(Survey(3).pathCount, 5);
}

// The foreign object is matched by the second criterion, which asks for selection too.
TEST_F(ArtWalkTest, InTheFontDetailsCategoryOnlyASelectedForeignObjectCounts) {
    OpenWalkFixture("every-kind.svg");
    globals.selectionOnly = 1;
    EXPECT_EQ(Survey(12).foreignObjectCount, 0);
    Select("note");
    EXPECT_EQ(Survey(12).foreignObjectCount, 1);
}

// --- Progress --------------------------------------------------------------------------------

// Fifteen matches: ten paths, two text frames, the foreign object, the compound path and the
// chart. Steps at 0, 4, 8 and 12.
TEST_F(ArtWalkTest, ProgressMovesOnEveryFourthMatch) {
    OpenWalkFixture("mode-nine.svg");
    Survey(3);
    EXPECT_EQ(progress.calls, (Calls{kProgressText, "update 0/15", "update 4/15", "update 8/15",
                                     "update 12/15", "end"}));
    EXPECT_EQ(runtime.progress.Depth(), 0);
}

// --- Failures --------------------------------------------------------------------------------

TEST_F(ArtWalkTest, AFailingMatchingRequestLeavesTheRecordEmpty) {
    OpenWalkFixture("every-kind.svg");
    runtime.faults.FailCall(ZM_MATCHING_ART_SUITE_NAME, 0, ZM_ERR_NO_MEMORY);
    EXPECT_TRUE(AllZero(Survey(3)));
    EXPECT_TRUE(progress.calls.empty());
}

TEST_F(ArtWalkTest, AFailingLayerListLeavesTheRecordEmpty) {
    OpenWalkFixture("every-kind.svg");
    runtime.faults.FailCall(ZM_LAYER_LIST_SUITE_NAME, 0, ZM_ERR_INTERNAL);
    EXPECT_TRUE(AllZero(Survey(3)));
}

TEST_F(ArtWalkTest, WithoutADocumentNothingIsSurveyed) { EXPECT_TRUE(AllZero(Survey(3))); }

// box comes first: it is counted as a path and its 4 anchors are added before its closed
// flag cannot be read. The survey ends there: ring and the rest are never seen. The progress
// display still ends, and the match handle goes back (checked after every test).
TEST_F(ArtWalkTest, AFailingHostCallEndsTheSurveyAndKeepsTheCountsSoFar) {
    OpenWalkFixture("every-kind.svg");
    runtime.faults.FailCall(ZM_PATH_SUITE_NAME, 2, ZM_ERR_INTERNAL);
    const SurveyRecord& record = Survey(3);
    EXPECT_EQ(record.pathCount, 1);
    EXPECT_EQ(record.pointCount, 4);
    EXPECT_EQ(record.openPathCount, 0);
    EXPECT_EQ(record.compoundPathCount, 0);
    EXPECT_EQ(progress.calls, (Calls{kProgressText, "update 0/10", "end"}));
}

// box, ring, stamp and bars come before plot: their counts stay; plot's query fails and the
// foreign object, mesh, blend and mask after it are not counted.
TEST_F(ArtWalkTest, AFailingGraphQueryEndsTheSurveyAtTheGraph) {
    OpenWalkFixture("every-kind.svg");
    runtime.faults.FailCall(ZM_ART_SUITE_NAME, 8, ZM_ERR_INTERNAL);
    const SurveyRecord& record = Survey(3);
    EXPECT_EQ(record.pathCount, 1);
    EXPECT_EQ(record.compoundPathCount, 1);
    EXPECT_EQ(record.symbolInstanceCount, 1);
    EXPECT_EQ(record.chartCount, 1);
    EXPECT_EQ(record.graphCount, 0);
    EXPECT_EQ(record.foreignObjectCount, 0);
    EXPECT_EQ(record.meshCount, 0);
    EXPECT_EQ(record.opacityMaskCount, 0);
}

TEST_F(ArtWalkTest, WhenNoArtTypeCanBeReadNothingIsCounted) {
    OpenWalkFixture("every-kind.svg");
    runtime.faults.FailCall(ZM_ART_SUITE_NAME, 0, ZM_ERR_INTERNAL);
    EXPECT_TRUE(AllZero(Survey(3)));
    EXPECT_EQ(progress.calls, (Calls{kProgressText, "update 0/10", "end"}));
}

// All five paths, none of them a clipping path as far as the survey can tell.
TEST_F(ArtWalkTest, APathStyleThatCannotBeReadIsNoClippingPath) {
    OpenWalkFixture("paths.svg");
    runtime.faults.FailCall(ZM_PATH_STYLE_SUITE_NAME, 0, ZM_ERR_INTERNAL);
    const SurveyRecord& record = Survey(3);
    EXPECT_EQ(record.pathCount, 5);
    EXPECT_EQ(record.clipMaskCount, 0);
}

// No mask is found, so veil is not reached: paths box and masked. Everything else counts.
TEST_F(ArtWalkTest, AFailingMaskQueryDoesNotEndTheSurvey) {
    OpenWalkFixture("every-kind.svg");
    runtime.faults.FailCall(ZM_MASK_SUITE_NAME, 0, ZM_ERR_INTERNAL);
    const SurveyRecord& record = Survey(3);
    EXPECT_EQ(record.opacityMaskCount, 0);
    EXPECT_EQ(record.pathCount, 2);
    EXPECT_EQ(record.compoundPathCount, 1);
    EXPECT_EQ(record.meshCount, 1);
    EXPECT_EQ(record.blendCount, 1);
}

// The mask is counted, then its art cannot be had: nothing of it is surveyed, and the mask
// reference goes back all the same (checked after every test).
TEST_F(ArtWalkTest, AMaskWhoseArtCannotBeHadIsCountedAndReleased) {
    OpenWalkFixture("every-kind.svg");
    runtime.faults.FailCall(ZM_MASK_SUITE_NAME, 1, ZM_ERR_NOT_FOUND);
    tolvane::PaintKind paintKinds = 0;
    globals.mode = 3;
    EXPECT_EQ(tolvane::VisitMaskedArt(Handle("masked"), paintKinds), ZM_ERR_NOT_FOUND);
    EXPECT_EQ(tolvane::gSurvey->record.opacityMaskCount, 1);
    EXPECT_EQ(tolvane::gSurvey->record.pathCount, 0);
}

}  // namespace
