#include <stats/LiveShapeStatistics.hpp>

#include "plugins/tolvane/stats/StatisticsFixture.hpp"

#include <gtest/gtest.h>

#include <string>
#include <utility>
#include <vector>

namespace zm::test {
namespace {

using LogEntries = std::vector<std::pair<std::string, std::string>>;

using LiveShapeStatisticsTest = StatisticsFixture;

LogEntries Shape(const char* type, const char* rounding, const char* radii) {
    return {{"Shape Corner Type", type}, {"Shape Rounding Type", rounding}, {"Shape Radii", radii}};
}

TEST_F(LiveShapeStatisticsTest, EachShapeWithCornersLogsOneGroupInMatchingOrder) {
    OpenFixture("stats", "corners.svg");
    tolvane::LogLiveShapeStatistics();
    const auto& groups = usage().Groups();
    // even, nearly, apart and mixed; the circle has no corners and the path is no live shape.
    ASSERT_EQ(groups.size(), 4u);
    for (const LoggedGroup& group : groups) {
        EXPECT_EQ(group.name, "Shape Document Close Group");
    }
    // Four corners of radius 5: all alike.
    EXPECT_EQ(groups[0].entries, Shape("Same Value", "Same Value", "Same Value"));
    // 10 and 10.00001 px differ by 7.5e-6 pt, within 2^-16 (about 1.5e-5).
    EXPECT_EQ(groups[1].entries, Shape("Same Value", "Same Value", "Same Value"));
    // 10 and 10.0001 px differ by 7.5e-5 pt, beyond it.
    EXPECT_EQ(groups[2].entries, Shape("Same Value", "Same Value", "Different Value"));
    // Corner 1 is a chamfer, corner 2 relative; every radius is 4.
    EXPECT_EQ(groups[3].entries, Shape("Different Value", "Different Value", "Same Value"));
}

TEST_F(LiveShapeStatisticsTest, ADocumentWithoutLiveShapeCornersLogsNoShapeGroup) {
    OpenFixture("stats", "no-live-shapes.svg");
    tolvane::LogLiveShapeStatistics();
    EXPECT_TRUE(usage().Groups().empty());
}

TEST_F(LiveShapeStatisticsTest, WithoutTheLiveShapesSuiteNoShapeIsExamined) {
    OpenFixture("stats", "corners.svg");
    tolvane::ReleaseOptionalSuites(tolvane::sBasicSuite);
    tolvane::LogLiveShapeStatistics();
    EXPECT_TRUE(usage().Groups().empty());
}

TEST_F(LiveShapeStatisticsTest, TheContentGroupComesFirstThenTheShapes) {
    const auto& groups = LogFixture("corners.svg");
    ASSERT_EQ(groups.size(), 5u);
    EXPECT_EQ(groups[0].name, "Document Content Information");
    EXPECT_EQ(groups[1].name, "Shape Document Close Group");
}

}  // namespace
}  // namespace zm::test
