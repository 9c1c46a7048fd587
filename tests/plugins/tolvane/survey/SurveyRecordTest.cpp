#include "plugins/tolvane/PluginUnitFixture.hpp"

#include <report/HostString.hpp>
#include <survey/SurveyRecord.hpp>

#include <gtest/gtest.h>

#include <cstring>
#include <limits>

namespace {

using tolvane::SurveyRecord;

class SurveyRecordTest : public zm::test::PluginUnitFixture {
protected:
    void TearDown() override {
        tolvane::FreeSurvey();
        EXPECT_EQ(runtime.blocks.LiveBlocks(), 0u);
        PluginUnitFixture::TearDown();
    }

    static bool AllZero(const SurveyRecord& record) {
        SurveyRecord zero{};
        return std::memcmp(&record, &zero, sizeof record) == 0;
    }

    static bool AllEmpty(const tolvane::SurveyLists& lists) {
        for (const tolvane::SurveyStringList* list :
             {&lists.spotColorList, &lists.patternList, &lists.gradientList, &lists.brushList,
              &lists.fontList, &lists.linkedImageList, &lists.embeddedImageList,
              &lists.fontDetailList, &lists.graphicStyleList}) {
            if (list->first != nullptr) {
                return false;
            }
        }
        return true;
    }

    void Offer(tolvane::SurveyStringList& list, const char* text) {
        tolvane::HostString string = tolvane::MakeUnicodeFromBytes(text, ZM_ENCODING_UTF8);
        ASSERT_EQ(tolvane::LinkStrAdd(list, string.Get(), false), ZM_ERR_NONE);
    }
};

TEST(SurveyRecordLayoutTest, ThirtyFiveCountersThenOneDouble) {
    EXPECT_EQ(offsetof(SurveyRecord, pathTypeCount), 34 * sizeof(int32_t));
    EXPECT_EQ(offsetof(SurveyRecord, totalPathLength), 36 * sizeof(int32_t));  // 8-aligned
}

TEST_F(SurveyRecordTest, ANewSurveyHasZeroCountersAndNineEmptyLists) {
    ASSERT_EQ(tolvane::MakeSurvey(), ZM_ERR_NONE);
    ASSERT_NE(tolvane::gSurvey, nullptr);
    EXPECT_TRUE(AllZero(tolvane::gSurvey->record));
    EXPECT_EQ(tolvane::gSurvey->record.totalPathLength, 0.0);
    EXPECT_TRUE(AllEmpty(tolvane::gSurvey->lists));
}

TEST_F(SurveyRecordTest, ASurveyAfterASurveyKeepsNothingOfTheFirst) {
    ASSERT_EQ(tolvane::MakeSurvey(), ZM_ERR_NONE);
    tolvane::Survey& survey = *tolvane::gSurvey;
    survey.record.pathCount = 4;
    survey.record.fontCount = 1;
    survey.record.totalPathLength = 12.5;
    Offer(survey.lists.fontList, "Arial");
    Offer(survey.lists.graphicStyleList, "Shadow");
    ASSERT_EQ(runtime.blocks.LiveBlocks(), 2u);
    tolvane::ResetSurvey(true);
    EXPECT_TRUE(AllZero(survey.record));
    EXPECT_TRUE(AllEmpty(survey.lists));
    EXPECT_EQ(runtime.blocks.LiveBlocks(), 0u);  // the nodes went back to the host
}

TEST_F(SurveyRecordTest, TheSurveyLivesInABlockOfTheHostsMemorySuite) {
    ASSERT_EQ(tolvane::MakeSurvey(), ZM_ERR_NONE);
    EXPECT_EQ(runtime.memory.LiveHandles(), 1u);
    tolvane::FreeSurvey();
    EXPECT_EQ(runtime.memory.LiveHandles(), 0u);
    EXPECT_EQ(tolvane::gSurvey, nullptr);
}

TEST_F(SurveyRecordTest, WithoutMemoryNoSurveyIsMadeAndTheAlertNamesThePlace) {
    runtime.faults.FailCall(ZM_MD_MEMORY_SUITE_NAME, 1, ZM_ERR_NO_MEMORY);
    EXPECT_EQ(tolvane::MakeSurvey(), ZM_ERR_NO_MEMORY);
    runtime.faults.Clear();
    EXPECT_EQ(tolvane::gSurvey, nullptr);
    ASSERT_EQ(runtime.alerts.size(), 1u);
    // The code -2 is printed with "%l", which prints nothing: "ID = " meets the two blanks.
    EXPECT_NE(runtime.alerts.front().text.find("\rID =   DoTolvaneDlog:NewHandleClear()"),
              std::string::npos)
        << runtime.alerts.front().text;
    EXPECT_EQ(runtime.alerts.front().text.rfind("Document Info Error:", 0), 0u);
}

// INT32_MAX + 2 wraps below what it was: -1, and no later path adds to it.
TEST(SurveyCountersTest, APointCountThatOverflowsSticksAtMinusOne) {
    SurveyRecord record{};
    record.pointCount = std::numeric_limits<int32_t>::max();
    tolvane::AddPoints(record, 2);
    EXPECT_EQ(record.pointCount, -1);
    tolvane::AddPoints(record, 5);
    EXPECT_EQ(record.pointCount, -1);
}

TEST(SurveyCountersTest, PointsAddUpUntilTheyOverflow) {
    SurveyRecord record{};
    tolvane::AddPoints(record, 4);
    tolvane::AddPoints(record, 8);
    EXPECT_EQ(record.pointCount, 12);
}

TEST(SurveyCountersTest, APathLengthThatFallsSticksAtMinusOne) {
    SurveyRecord record{};
    tolvane::AddPathLength(record, 10.0);
    tolvane::AddPathLength(record, -20.0);  // leaves the total smaller than before
    EXPECT_EQ(record.totalPathLength, -1.0);
    tolvane::AddPathLength(record, 50.0);
    EXPECT_EQ(record.totalPathLength, -1.0);
}

}  // namespace
