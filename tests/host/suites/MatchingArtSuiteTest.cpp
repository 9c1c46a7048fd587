#include <gtest/gtest.h>
#include <zelmora/ZMArtSuite.h>
#include <zelmora/ZMLayerSuite.h>
#include <zelmora/ZMMatchingArtSuite.h>
#include <zelmora/ZMMdMemorySuite.h>

#include <memory>
#include <string>
#include <vector>

#include "host/suites/SuiteFixture.hpp"
#include "support/DocumentBuilder.hpp"

namespace zm::host {
namespace {

using document::Art;
using document::ArtType;
using Ids = std::vector<std::string>;

constexpr uint32_t kSelected = ZM_ART_SELECTED;
constexpr uint32_t kMember = ZM_ART_COMPOUND_MEMBER;

// Layer 1: group g { path p1, compound path c { c1, c2 } }, text frame t1
// Layer 2: foreign object f, plug-in group b { result group r { path b1 } }, text frame t2
class MatchingArtSuiteTest : public zm::test::SuiteFixture {
protected:
    void SetUp() override {
        Acquire(ZM_MATCHING_ART_SUITE_NAME, ZM_MATCHING_ART_SUITE_VERSION, matching);
        Acquire(ZM_LAYER_LIST_SUITE_NAME, ZM_LAYER_LIST_SUITE_VERSION, lists);
        Acquire(ZM_MD_MEMORY_SUITE_NAME, ZM_MD_MEMORY_SUITE_VERSION, memory);
        using zm::test::AddArt;
        using zm::test::AddRectangle;
        auto built = std::make_unique<document::Document>();
        document::Layer& first = zm::test::AddLayer(*built, "Layer 1");
        g = &AddArt(*first.root, ArtType::Group, "g");
        AddRectangle(*g, 0, 0, 1, 1, "p1");
        Art& c = AddArt(*g, ArtType::CompoundPath, "c");
        AddRectangle(c, 0, 0, 1, 1, "c1");
        AddRectangle(c, 0, 0, 1, 1, "c2");
        AddArt(*first.root, ArtType::TextFrame, "t1");
        document::Layer& second = zm::test::AddLayer(*built, "Layer 2");
        AddArt(*second.root, ArtType::ForeignObject, "f");
        Art& b = AddArt(*second.root, ArtType::PluginGroup, "b");
        b.Add(std::make_unique<Art>(ArtType::Group, "r"));
        AddRectangle(b.ResultGroup(), 0, 0, 1, 1, "b1");
        AddArt(*second.root, ArtType::TextFrame, "t2");
        runtime.documents.Add(std::move(built));
        ASSERT_EQ(lists->GetCurrentLayerList(&list), ZM_ERR_NONE);
    }

    void TearDown() override {
        EXPECT_EQ(runtime.memory.LiveHandles(), 0u) << "a match handle was not disposed of";
        SuiteFixture::TearDown();
    }

    // The ids of the matched art, read from the handle the way a plug-in reads it; the
    // handle is disposed of afterwards.
    Ids Read(ZMMdMemoryHandle matches, int32_t count) {
        Ids ids;
        if (count == 0) {
            EXPECT_EQ(matches, nullptr);
            return ids;
        }
        size_t size = 0;
        EXPECT_EQ(memory->GetHandleSize(matches, &size), ZM_ERR_NONE);
        EXPECT_EQ(size, static_cast<size_t>(count) * sizeof(ZMArtHandle));
        void* block = nullptr;
        EXPECT_EQ(memory->MdMemoryHandleDeref(matches, &block), ZM_ERR_NONE);
        auto* handles = static_cast<ZMArtHandle*>(block);
        for (int32_t i = 0; i < count; ++i) {
            ids.push_back(reinterpret_cast<Art*>(handles[i])->Id());
        }
        EXPECT_EQ(memory->DisposeHandle(matches), ZM_ERR_NONE);
        return ids;
    }

    Ids Match(std::vector<ZMMatchCriterion> criteria) {
        ZMMdMemoryHandle matches = nullptr;
        int32_t count = -1;
        EXPECT_EQ(
            matching->GetMatchingArtOfLayerList(
                list, criteria.data(), static_cast<int32_t>(criteria.size()), &matches, &count),
            ZM_ERR_NONE);
        return Read(matches, count);
    }

    const ZMMatchingArtSuite* matching = nullptr;
    const ZMLayerListSuite* lists = nullptr;
    const ZMMdMemorySuite* memory = nullptr;
    ZMLayerList list = nullptr;
    Art* g = nullptr;
};

TEST(MatchCriterionTest, ACriterionIsTwelveBytes) {
    // type, two bytes of padding, mask, value: the layout plug-ins build by hand.
    EXPECT_EQ(sizeof(ZMMatchCriterion), 12u);
    EXPECT_EQ(offsetof(ZMMatchCriterion, mask), 4u);
    EXPECT_EQ(offsetof(ZMMatchCriterion, value), 8u);
}

TEST_F(MatchingArtSuiteTest, SelectedArtWithTheMemberBitInTheMaskLeavesCompoundMembersOut) {
    g->SetSelected(true);
    // Selected: g and all it holds; the member bit in the mask with value 0 drops c1 and c2.
    EXPECT_EQ(Match({{ZM_ART_ANY, 0, kSelected | kMember, kSelected}}), (Ids{"g", "p1", "c"}));
}

TEST_F(MatchingArtSuiteTest, NothingSelectedMatchesNothing) {
    EXPECT_EQ(Match({{ZM_ART_ANY, 0, kSelected | kMember, kSelected}}), Ids{});
}

TEST_F(MatchingArtSuiteTest, AnyArtWithTheMemberBitClearIsEveryObjectButCompoundMembers) {
    // Pre-order, the plug-in group's result group and what it holds included.
    EXPECT_EQ(Match({{ZM_ART_ANY, 0, kMember, 0}}),
              (Ids{"g", "p1", "c", "t1", "f", "b", "r", "b1", "t2"}));
}

TEST_F(MatchingArtSuiteTest, AnEmptyMaskMatchesEveryObjectCompoundMembersIncluded) {
    EXPECT_EQ(Match({{ZM_ART_ANY, 0, 0, 0}}),
              (Ids{"g", "p1", "c", "c1", "c2", "t1", "f", "b", "r", "b1", "t2"}));
}

TEST_F(MatchingArtSuiteTest, TwoCriteriaMatchTextFramesAndForeignObjectsInDocumentOrder) {
    EXPECT_EQ(Match({{ZM_ART_TEXT_FRAME, 0, kMember, 0}, {ZM_ART_FOREIGN_OBJECT, 0, 0, 0}}),
              (Ids{"t1", "f", "t2"}));
}

TEST_F(MatchingArtSuiteTest, AnObjectFittingSeveralCriteriaIsReturnedOnce) {
    // Paths fit both; the eleven objects each come once.
    EXPECT_EQ(Match({{ZM_ART_PATH, 0, 0, 0}, {ZM_ART_ANY, 0, 0, 0}}).size(), 11u);
}

TEST_F(MatchingArtSuiteTest, TheWholeDocumentMatchesAsItsLayerListDoes) {
    ZMMatchCriterion paths{ZM_ART_PATH, 0, 0, 0};
    ZMMdMemoryHandle matches = nullptr;
    int32_t count = -1;
    ASSERT_EQ(matching->GetMatchingArt(&paths, 1, &matches, &count), ZM_ERR_NONE);
    EXPECT_EQ(Read(matches, count), (Ids{"p1", "c1", "c2", "b1"}));
}

TEST_F(MatchingArtSuiteTest, SelectedArtIncludesWhatSelectedArtHolds) {
    g->SetSelected(true);
    ZMMdMemoryHandle matches = nullptr;
    int32_t count = -1;
    ASSERT_EQ(matching->GetSelectedArt(&matches, &count), ZM_ERR_NONE);
    EXPECT_EQ(Read(matches, count), (Ids{"g", "p1", "c", "c1", "c2"}));
}

TEST_F(MatchingArtSuiteTest, NoMatchGivesANullHandleAndACountOfZero) {
    ZMMatchCriterion charts{ZM_ART_CHART, 0, 0, 0};
    ZMMdMemoryHandle matches = zm::test::ForeignHandle<ZMMdMemoryHandle>();
    int32_t count = -1;
    ASSERT_EQ(matching->GetMatchingArtOfLayerList(list, &charts, 1, &matches, &count), ZM_ERR_NONE);
    EXPECT_EQ(matches, nullptr);
    EXPECT_EQ(count, 0);
}

TEST_F(MatchingArtSuiteTest, BadCriteriaAreABadArgument) {
    ZMMatchCriterion any{ZM_ART_ANY, 0, 0, 0};
    ZMMdMemoryHandle matches = nullptr;
    int32_t count = -1;
    EXPECT_EQ(matching->GetMatchingArtOfLayerList(list, &any, 0, &matches, &count),
              ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(matching->GetMatchingArtOfLayerList(list, nullptr, 1, &matches, &count),
              ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(matching->GetMatchingArtOfLayerList(list, &any, 1, nullptr, &count),
              ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(matching->GetMatchingArtOfLayerList(list, &any, 1, &matches, nullptr),
              ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(matching->GetMatchingArt(&any, -3, &matches, &count), ZM_ERR_BAD_ARGUMENT);
}

TEST_F(MatchingArtSuiteTest, AForeignLayerListIsABadArgument) {
    ZMMatchCriterion any{ZM_ART_ANY, 0, 0, 0};
    ZMMdMemoryHandle matches = nullptr;
    int32_t count = -1;
    EXPECT_EQ(matching->GetMatchingArtOfLayerList(zm::test::ForeignHandle<ZMLayerList>(), &any, 1,
                                                  &matches, &count),
              ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(matching->GetMatchingArtOfLayerList(nullptr, &any, 1, &matches, &count),
              ZM_ERR_BAD_ARGUMENT);
}

TEST_F(MatchingArtSuiteTest, WithoutADocumentNothingIsMatched) {
    runtime.documents.CloseCurrent();
    ZMMatchCriterion any{ZM_ART_ANY, 0, 0, 0};
    ZMMdMemoryHandle matches = nullptr;
    int32_t count = -1;
    EXPECT_EQ(matching->GetMatchingArtOfLayerList(list, &any, 1, &matches, &count),
              ZM_ERR_NO_DOCUMENT);
    EXPECT_EQ(matching->GetMatchingArt(&any, 1, &matches, &count), ZM_ERR_NO_DOCUMENT);
    EXPECT_EQ(matching->GetSelectedArt(&matches, &count), ZM_ERR_NO_DOCUMENT);
}

TEST_F(MatchingArtSuiteTest, WithoutMemoryForTheResultNoHandleIsLeft) {
    runtime.faults.FailAllocation(1);
    ZMMatchCriterion any{ZM_ART_ANY, 0, 0, 0};
    ZMMdMemoryHandle matches = nullptr;
    int32_t count = -1;
    EXPECT_EQ(matching->GetMatchingArt(&any, 1, &matches, &count), ZM_ERR_NO_MEMORY);
}

}  // namespace
}  // namespace zm::host
