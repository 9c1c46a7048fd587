#include <gtest/gtest.h>
#include <zelmora/ZMArtSuite.h>
#include <zelmora/ZMPluginGroupSuite.h>
#include <zelmora/ZMVectorizeSuite.h>

#include <cstring>
#include <string>
#include <survey/PluginGroups.hpp>

#include "plugins/tolvane/survey/SurveyWalkFixture.hpp"

namespace {

using tolvane::SurveyRecord;

class PluginGroupsTest : public zm::test::SurveyWalkFixture {
protected:
    void SetUp() override {
        SurveyWalkFixture::SetUp();
        OpenWalkFixture("plugin-groups.svg");
    }

    const SurveyRecord& Record() const { return tolvane::gSurvey->record; }

    // The record holds 1 in that counter and nothing anywhere else.
    ::testing::AssertionResult CountedOnlyIn(int32_t SurveyRecord::*counter) const {
        SurveyRecord expected{};
        expected.*counter = 1;
        if (std::memcmp(&Record(), &expected, sizeof expected) == 0) {
            return ::testing::AssertionSuccess();
        }
        return ::testing::AssertionFailure() << "other counters moved, or this one did not";
    }
};

struct KnownPlugin {
    const char* groupId;
    int32_t SurveyRecord::*counter;
};

// Each group of plugin-groups.svg and the one counter its plug-in's name raises; the trace
// group's plug-in is none of the named ones, and the host's vectorize suite recognises it.
const KnownPlugin kKnownPlugins[] = {
    {"blendA", &SurveyRecord::blendCount},         {"shape", &SurveyRecord::compoundShapeCount},
    {"paint", &SurveyRecord::livePaintGroupCount}, {"envelope", &SurveyRecord::envelopeCount},
    {"flare", &SurveyRecord::flareCount},          {"trace", &SurveyRecord::tracingObjectCount},
};

TEST_F(PluginGroupsTest, EachKnownPlugInRaisesItsOwnCounterOnly) {
    for (const KnownPlugin& known : kKnownPlugins) {
        SCOPED_TRACE(known.groupId);
        tolvane::ResetSurvey(true);
        EXPECT_EQ(tolvane::ClassifyPluginGroup(Handle(known.groupId)), ZM_ERR_NONE);
        EXPECT_TRUE(CountedOnlyIn(known.counter));
    }
}

// Symbol sets are counted through their instances, not here.
TEST_F(PluginGroupsTest, ASymbolismGroupRaisesNothing) {
    EXPECT_EQ(tolvane::ClassifyPluginGroup(Handle("symbols")), ZM_ERR_NONE);
    EXPECT_TRUE(AllZero(Record()));
}

// "quorvel path blends" is not "Quorvel Path Blends", nor anything the host traces with.
TEST_F(PluginGroupsTest, NamesCompareWithCase) {
    EXPECT_EQ(tolvane::ClassifyPluginGroup(Handle("lowercase")), ZM_ERR_NONE);
    EXPECT_EQ(Record().blendCount, 0);
    EXPECT_EQ(Record().tracingObjectCount, 0);
}

// blendA's one member is its result group, an ordinary group.
TEST_F(PluginGroupsTest, ArtThatIsNoPlugInGroupIsLeftAlone) {
    zm::host::document::Art& result = *ArtWithId("blendA").Children().front();
    EXPECT_EQ(tolvane::ClassifyPluginGroup(reinterpret_cast<ZMArtHandle>(&result)), ZM_ERR_NONE);
    EXPECT_TRUE(AllZero(Record()));
}

TEST_F(PluginGroupsTest, AFailingPlugInGroupQueryGivesItsCode) {
    runtime.faults.FailCall(ZM_PLUGIN_GROUP_SUITE_NAME, 1, ZM_ERR_INTERNAL);
    EXPECT_EQ(tolvane::ClassifyPluginGroup(Handle("blendA")), ZM_ERR_INTERNAL);
    EXPECT_TRUE(AllZero(Record()));
}

// The vectorize suite is given back after a failing question too (checked after every test).
TEST_F(PluginGroupsTest, AFailingTracingQueryGivesItsCodeAndReleasesTheSuite) {
    runtime.faults.FailCall(ZM_VECTORIZE_SUITE_NAME, 0, ZM_ERR_INTERNAL);
    EXPECT_EQ(tolvane::ClassifyPluginGroup(Handle("trace")), ZM_ERR_INTERNAL);
    EXPECT_EQ(Record().tracingObjectCount, 0);
}

TEST_F(PluginGroupsTest, ANamedPlugInNeedsNoVectorizeSuite) {
    runtime.faults.FailCall(ZM_VECTORIZE_SUITE_NAME, 0, ZM_ERR_INTERNAL);
    EXPECT_EQ(tolvane::ClassifyPluginGroup(Handle("flare")), ZM_ERR_NONE);
    EXPECT_TRUE(CountedOnlyIn(&SurveyRecord::flareCount));
}

class SymbolSetTest : public zm::test::SurveyWalkFixture {
protected:
    void SetUp() override {
        SurveyWalkFixture::SetUp();
        OpenWalkFixture("symbol-sets.svg");
    }

    int32_t IsSet(const std::string& id) {
        int32_t isSet = 7;  // anything: the call sets it
        EXPECT_EQ(tolvane::IsSymbolSetGroup(Handle(id), isSet), ZM_ERR_NONE);
        return isSet;
    }
};

// instance's parent is the symbolism group's result group; its grandparent the group.
TEST_F(SymbolSetTest, ArtTwoLevelsBelowASymbolismGroupIsASetsInstance) {
    EXPECT_EQ(IsSet("instance"), 1);
    EXPECT_EQ(tolvane::gSurvey->record.symbolSetCount, 1);
}

// bunch is an instance in the same way; deep, one level further down, has the result group
// as its grandparent, which is an ordinary group.
TEST_F(SymbolSetTest, OnlyTheArtRightBelowTheResultGroupCounts) {
    EXPECT_EQ(IsSet("bunch"), 1);
    EXPECT_EQ(IsSet("deep"), 0);
    EXPECT_EQ(tolvane::gSurvey->record.symbolSetCount, 1);
}

TEST_F(SymbolSetTest, ArtBelowAnotherPlugInsGroupIsNoInstance) {
    EXPECT_EQ(IsSet("step"), 0);
    EXPECT_EQ(tolvane::gSurvey->record.symbolSetCount, 0);
}

// member's grandparent would be above the layer; top has no parent at all.
TEST_F(SymbolSetTest, ArtNearTheTopOfTheLayerHasNoSymbolSetAbove) {
    EXPECT_EQ(IsSet("member"), 0);
    EXPECT_EQ(IsSet("top"), 0);
    EXPECT_EQ(tolvane::gSurvey->record.symbolSetCount, 0);
}

TEST_F(SymbolSetTest, AFailingParentQueryGivesItsCode) {
    runtime.faults.FailCall(ZM_ART_SUITE_NAME, 1, ZM_ERR_INTERNAL);
    int32_t isSet = 7;
    EXPECT_EQ(tolvane::IsSymbolSetGroup(Handle("instance"), isSet), ZM_ERR_INTERNAL);
    EXPECT_EQ(isSet, 0);
    EXPECT_EQ(tolvane::gSurvey->record.symbolSetCount, 0);
}

}  // namespace
