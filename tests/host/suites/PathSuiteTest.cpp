#include <gtest/gtest.h>
#include <zelmora/ZMPathSuite.h>

#include <cmath>
#include <memory>
#include <numbers>
#include <vector>

#include "host/suites/SuiteFixture.hpp"
#include "support/DocumentBuilder.hpp"

namespace zm::host {
namespace {

using document::Art;
using document::ArtType;

ZMArtHandle H(const Art& art) { return reinterpret_cast<ZMArtHandle>(const_cast<Art*>(&art)); }

class PathSuiteTest : public zm::test::SuiteFixture {
protected:
    void SetUp() override {
        Acquire(ZM_PATH_SUITE_NAME, ZM_PATH_SUITE_VERSION, paths);
        auto built = std::make_unique<document::Document>();
        layer = zm::test::AddLayer(*built, "Layer 1").root.get();
        rectangle = &zm::test::AddRectangle(*layer, 10, 20, 100, 50, "rectangle");
        corner = &zm::test::AddPath(
            *layer, zm::test::StraightPath({{0, 0}, {30, 0}, {30, 40}}, false), "corner");
        circle = &zm::test::AddPath(*layer, zm::test::CirclePath({0, 0}, 100), "circle");
        group = &zm::test::AddArt(*layer, ArtType::Group, "group");
        runtime.documents.Add(std::move(built));
    }

    double Length(const Art& path, double flatness) {
        double length = -1;
        EXPECT_EQ(paths->GetPathLength(H(path), &length, flatness), ZM_ERR_NONE);
        return length;
    }

    int16_t Count(const Art& path) {
        int16_t count = -1;
        EXPECT_EQ(paths->GetPathSegmentCount(H(path), &count), ZM_ERR_NONE);
        return count;
    }

    // A path of n anchors along a line.
    Art& PathOf(int n) {
        std::vector<document::Point> points;
        for (int i = 0; i < n; ++i) {
            points.push_back({static_cast<double>(i), 0});
        }
        return zm::test::AddPath(*layer, zm::test::StraightPath(points, false));
    }

    const ZMPathSuite* paths = nullptr;
    Art* layer = nullptr;
    Art* rectangle = nullptr;
    Art* corner = nullptr;
    Art* circle = nullptr;
    Art* group = nullptr;
};

TEST_F(PathSuiteTest, TheSegmentCountIsTheNumberOfAnchors) {
    EXPECT_EQ(Count(*rectangle), 4);
    EXPECT_EQ(Count(*corner), 3);
    EXPECT_EQ(Count(*circle), 4);
}

TEST_F(PathSuiteTest, ThirtyTwoThousandSevenHundredSixtySevenSegmentsStillFit) {
    EXPECT_EQ(Count(PathOf(32767)), 32767);
}

TEST_F(PathSuiteTest, MoreSegmentsThanASixteenBitCountHoldsIsAnErrorNotAWrappedCount) {
    Art& huge = PathOf(32768);
    int16_t count = 7;
    EXPECT_EQ(paths->GetPathSegmentCount(H(huge), &count), ZM_ERR_TOO_MANY_SEGMENTS);
    EXPECT_EQ(count, 7);  // left alone, not -32768
}

TEST_F(PathSuiteTest, SegmentsAreCopiedFromTheIndexAsked) {
    std::vector<ZMPathSegment> segments(2);
    ASSERT_EQ(paths->GetPathSegments(H(*rectangle), 1, 2, segments.data()), ZM_ERR_NONE);
    // The rectangle's anchors run counter-clockwise from (10, 20): (110, 20), then (110, 70).
    EXPECT_EQ(segments[0].anchor.x, 110);
    EXPECT_EQ(segments[0].anchor.y, 20);
    EXPECT_EQ(segments[1].anchor.x, 110);
    EXPECT_EQ(segments[1].anchor.y, 70);
    EXPECT_EQ(segments[1].in.x, 110);  // a corner: its direction points sit on the anchor
    EXPECT_EQ(segments[1].corner, 1);
}

TEST_F(PathSuiteTest, ACircleKeepsItsDirectionPointsAndHasNoCorners) {
    ZMPathSegment first{};
    ASSERT_EQ(paths->GetPathSegments(H(*circle), 0, 1, &first), ZM_ERR_NONE);
    EXPECT_EQ(first.anchor.x, 100);
    EXPECT_DOUBLE_EQ(first.out.y, 55.22847498);  // 0.5522847498 of the radius
    EXPECT_EQ(first.corner, 0);
}

TEST_F(PathSuiteTest, SegmentsOutsideThePathAreABadArgument) {
    std::vector<ZMPathSegment> segments(5);
    EXPECT_EQ(paths->GetPathSegments(H(*rectangle), 2, 3, segments.data()), ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(paths->GetPathSegments(H(*rectangle), -1, 1, segments.data()), ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(paths->GetPathSegments(H(*rectangle), 0, -1, segments.data()), ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(paths->GetPathSegments(H(*rectangle), 0, 4, nullptr), ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(paths->GetPathSegments(H(*rectangle), 4, 0, segments.data()), ZM_ERR_NONE);
}

TEST_F(PathSuiteTest, TheClosedFlagSaysWhetherThePathIsClosed) {
    ZMBool closed = -1;
    ASSERT_EQ(paths->GetPathClosed(H(*rectangle), &closed), ZM_ERR_NONE);
    EXPECT_EQ(closed, 1);
    ASSERT_EQ(paths->GetPathClosed(H(*corner), &closed), ZM_ERR_NONE);
    EXPECT_EQ(closed, 0);
}

TEST_F(PathSuiteTest, ARectanglesLengthIsItsPerimeterExactly) {
    // 100 + 50 + 100 + 50, the closing side included.
    EXPECT_EQ(Length(*rectangle, 0.5), 300.0);
}

TEST_F(PathSuiteTest, AnOpenPathLeavesOutTheWayBack) {
    EXPECT_EQ(Length(*corner, 0.5), 70.0);  // 30 across and 40 up; not the 50 back
}

TEST_F(PathSuiteTest, ACirclesLengthIsItsCircumferenceWithinTheFlatness) {
    // Flattening at 0.5 pt falls short by at most 2 pi * 0.5 / 3 (about 1.05 pt); the four
    // curves stray at most 0.2 pt from the true circle.
    EXPECT_NEAR(Length(*circle, 0.5), 2 * std::numbers::pi * 100,
                2 * std::numbers::pi * 0.5 / 3 + 0.2);
}

TEST_F(PathSuiteTest, FlatnessMustBeAPositiveNumber) {
    double length = -1;
    EXPECT_EQ(paths->GetPathLength(H(*circle), &length, 0), ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(paths->GetPathLength(H(*circle), &length, -0.5), ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(paths->GetPathLength(H(*circle), &length, NAN), ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(paths->GetPathLength(H(*circle), &length, INFINITY), ZM_ERR_BAD_ARGUMENT);
}

TEST_F(PathSuiteTest, ArtThatIsNoPathIsOfTheWrongType) {
    int16_t count = 0;
    ZMBool closed = 0;
    double length = 0;
    EXPECT_EQ(paths->GetPathSegmentCount(H(*group), &count), ZM_ERR_WRONG_ART_TYPE);
    EXPECT_EQ(paths->GetPathClosed(H(*group), &closed), ZM_ERR_WRONG_ART_TYPE);
    EXPECT_EQ(paths->GetPathLength(H(*group), &length, 0.5), ZM_ERR_WRONG_ART_TYPE);
}

TEST_F(PathSuiteTest, NullOrForeignHandlesAndOutPointersAreBadArguments) {
    int16_t count = 0;
    EXPECT_EQ(paths->GetPathSegmentCount(nullptr, &count), ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(paths->GetPathSegmentCount(zm::test::ForeignHandle<ZMArtHandle>(), &count),
              ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(paths->GetPathSegmentCount(H(*rectangle), nullptr), ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(paths->GetPathClosed(H(*rectangle), nullptr), ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(paths->GetPathLength(H(*rectangle), nullptr, 0.5), ZM_ERR_BAD_ARGUMENT);
}

TEST_F(PathSuiteTest, WithoutADocumentTheEntriesAnswerNoDocument) {
    ZMArtHandle path = H(*rectangle);
    runtime.documents.CloseCurrent();
    int16_t count = 0;
    ZMPathSegment segment{};
    ZMBool closed = 0;
    double length = 0;
    EXPECT_EQ(paths->GetPathSegmentCount(path, &count), ZM_ERR_NO_DOCUMENT);
    EXPECT_EQ(paths->GetPathSegments(path, 0, 1, &segment), ZM_ERR_NO_DOCUMENT);
    EXPECT_EQ(paths->GetPathClosed(path, &closed), ZM_ERR_NO_DOCUMENT);
    EXPECT_EQ(paths->GetPathLength(path, &length, 0.5), ZM_ERR_NO_DOCUMENT);
}

}  // namespace
}  // namespace zm::host
