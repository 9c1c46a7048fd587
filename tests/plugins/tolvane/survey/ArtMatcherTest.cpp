#include <gtest/gtest.h>
#include <zelmora/ZMArtSuite.h>
#include <zelmora/ZMMatchingArtSuite.h>

#include <memory>
#include <survey/ArtMatcher.hpp>
#include <type_traits>

#include "plugins/tolvane/PluginUnitFixture.hpp"
#include "support/DocumentBuilder.hpp"

namespace {

using zm::host::document::Art;
using zm::host::document::ArtType;

static_assert(std::has_virtual_destructor_v<tolvane::ArtMatcher>);

ZMArtHandle HandleOf(Art& art) { return reinterpret_cast<ZMArtHandle>(&art); }

class ArtMatcherTest : public zm::test::PluginUnitFixture {
protected:
    // One layer: a group holding a path, then a chart.
    void SetUp() override {
        PluginUnitFixture::SetUp();
        auto document = std::make_unique<zm::host::document::Document>();
        zm::host::document::Layer& layer = zm::test::AddLayer(*document, "Layer 1");
        group = &zm::test::AddArt(*layer.root, ArtType::Group, "group");
        path = &zm::test::AddRectangle(*group, 0, 0, 10, 10, "path");
        chart = &zm::test::AddArt(*layer.root, ArtType::Chart, "chart");
        Open(std::move(document));
    }

    void TearDown() override {
        EXPECT_EQ(runtime.blocks.LiveBlocks(), 0u);
        EXPECT_EQ(runtime.memory.LiveHandles(), 0u);
        PluginUnitFixture::TearDown();  // also finds a memory suite still held
    }

    Art* group = nullptr;
    Art* path = nullptr;
    Art* chart = nullptr;
};

// Two criteria of 12 bytes in one block of the host's allocator, zero-filled.
TEST_F(ArtMatcherTest, TheCriteriaLiveInOneZeroFilledBlockOfTheHost) {
    tolvane::ArtMatcher matcher(2);
    EXPECT_EQ(matcher.CriterionCount(), 2);
    EXPECT_EQ(runtime.blocks.LiveBlocks(), 1u);
    for (int32_t index = 0; index < 2; ++index) {
        EXPECT_EQ(matcher.Criterion(index).type, 0);
        EXPECT_EQ(matcher.Criterion(index).mask, 0u);
        EXPECT_EQ(matcher.Criterion(index).value, 0u);
    }
    EXPECT_EQ(matcher.MatchCount(), 0);
}

TEST_F(ArtMatcherTest, NoCountNoCriteria) {
    tolvane::ArtMatcher matcher(0);
    EXPECT_EQ(matcher.CriterionCount(), 0);
    EXPECT_EQ(runtime.blocks.LiveBlocks(), 0u);
    EXPECT_EQ(matcher.Match(), ZM_ERR_BAD_ARGUMENT);  // the host wants at least one
}

TEST_F(ArtMatcherTest, WithoutABlockForTheCriteriaMatchingFailsForWantOfMemory) {
    runtime.faults.FailAllocation(1);
    tolvane::ArtMatcher matcher(1);
    EXPECT_EQ(matcher.CriterionCount(), 0);
    EXPECT_EQ(matcher.Match(), ZM_ERR_NO_MEMORY);
}

// Any type, no attribute filter: the group, its path and the chart, in document order.
TEST_F(ArtMatcherTest, MatchingFindsTheArtInDocumentOrder) {
    tolvane::ArtMatcher matcher(1);
    matcher.Criterion(0).type = ZM_ART_ANY;
    ASSERT_EQ(matcher.Match(), ZM_ERR_NONE);
    ASSERT_EQ(matcher.MatchCount(), 3);
    EXPECT_EQ(matcher.MatchedArt(0), HandleOf(*group));
    EXPECT_EQ(matcher.MatchedArt(1), HandleOf(*path));
    EXPECT_EQ(matcher.MatchedArt(2), HandleOf(*chart));
    EXPECT_EQ(runtime.memory.LiveHandles(), 1u);
}

// The handle of the matches goes back through the memory suite when the matcher goes.
TEST_F(ArtMatcherTest, TheMatchesGoBackWithTheMatcher) {
    {
        tolvane::ArtMatcher matcher(1);
        matcher.Criterion(0).type = ZM_ART_ANY;
        ASSERT_EQ(matcher.Match(), ZM_ERR_NONE);
        ASSERT_EQ(runtime.memory.LiveHandles(), 1u);
    }
    EXPECT_EQ(runtime.memory.LiveHandles(), 0u);
    EXPECT_EQ(runtime.blocks.LiveBlocks(), 0u);
}

// Deleted through its base pointer, as the virtual destructor allows.
TEST_F(ArtMatcherTest, DeletingTheMatcherGivesEverythingBack) {
    auto* matcher = new tolvane::ArtMatcher(1);
    matcher->Criterion(0).type = ZM_ART_CHART;
    ASSERT_EQ(matcher->Match(), ZM_ERR_NONE);
    EXPECT_EQ(matcher->MatchCount(), 1);
    delete matcher;
    EXPECT_EQ(runtime.memory.LiveHandles(), 0u);
    EXPECT_EQ(runtime.blocks.LiveBlocks(), 0u);
}

// A second request gives the first one's handle back: only one is held at a time.
TEST_F(ArtMatcherTest, ASecondMatchReplacesTheFirst) {
    tolvane::ArtMatcher matcher(1);
    matcher.Criterion(0).type = ZM_ART_ANY;
    ASSERT_EQ(matcher.Match(), ZM_ERR_NONE);
    matcher.Criterion(0).type = ZM_ART_PATH;
    ASSERT_EQ(matcher.Match(), ZM_ERR_NONE);
    EXPECT_EQ(runtime.memory.LiveHandles(), 1u);
    ASSERT_EQ(matcher.MatchCount(), 1);
    EXPECT_EQ(matcher.MatchedArt(0), HandleOf(*path));
}

// Selected art only; nothing is selected, so the host makes no handle.
TEST_F(ArtMatcherTest, NothingMatchedHoldsNothing) {
    tolvane::ArtMatcher matcher(1);
    matcher.Criterion(0) = {ZM_ART_ANY, 0, ZM_ART_SELECTED, ZM_ART_SELECTED};
    ASSERT_EQ(matcher.Match(), ZM_ERR_NONE);
    EXPECT_EQ(matcher.MatchCount(), 0);
    EXPECT_EQ(runtime.memory.LiveHandles(), 0u);
}

TEST_F(ArtMatcherTest, AFailingRequestGivesTheHostsCode) {
    runtime.faults.FailCall(ZM_MATCHING_ART_SUITE_NAME, 1, ZM_ERR_INTERNAL);
    tolvane::ArtMatcher matcher(1);
    EXPECT_EQ(matcher.Match(), ZM_ERR_INTERNAL);
    EXPECT_EQ(matcher.MatchCount(), 0);
}

}  // namespace
