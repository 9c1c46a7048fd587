#include <gtest/gtest.h>
#include <zelmora/ZMArtSuite.h>
#include <zelmora/ZMLiveShapesSuite.h>
#include <zelmora/ZMPathSuite.h>

#include <memory>
#include <vector>

#include "host/suites/SuiteFixture.hpp"
#include "support/DocumentBuilder.hpp"

namespace zm::host {
namespace {

using document::Art;
using document::ArtType;
using document::Corner;

ZMArtHandle H(const Art& art) { return reinterpret_cast<ZMArtHandle>(const_cast<Art*>(&art)); }

// A live rectangle whose corners differ, a live ellipse (no corners), and a plain triangle.
class LiveShapesSuiteTest : public zm::test::SuiteFixture {
protected:
    void SetUp() override {
        Acquire(ZM_LIVE_SHAPES_SUITE_NAME, ZM_LIVE_SHAPES_SUITE_VERSION, shapes);
        Acquire(ZM_LIVE_CORNERS_SUITE_NAME, ZM_LIVE_CORNERS_SUITE_VERSION, corners);
        Acquire(ZM_PATH_SUITE_NAME, ZM_PATH_SUITE_VERSION, paths);
        auto built = std::make_unique<document::Document>();
        Art* layer = zm::test::AddLayer(*built, "Layer 1").root.get();
        rectangle = &zm::test::AddRectangle(*layer, 0, 0, 100, 50, "rectangle");
        rectangle->liveShape = document::LiveShape{
            document::LiveShapeKind::Rectangle,
            {Corner{0, 0, 5}, Corner{0, 0, 5}, Corner{2, 1, 7.5}, Corner{0, 0, 5}}};
        ellipse = &zm::test::AddPath(*layer, zm::test::CirclePath({0, 0}, 10), "ellipse");
        ellipse->liveShape = document::LiveShape{document::LiveShapeKind::Ellipse, {}};
        triangle = &zm::test::AddPath(
            *layer, zm::test::StraightPath({{0, 0}, {10, 0}, {5, 8}}, true), "triangle");
        runtime.documents.Add(std::move(built));
    }

    void TearDown() override {
        EXPECT_TRUE(runtime.liveCorners.All().empty()) << "a corners object was not disposed of";
        SuiteFixture::TearDown();
    }

    // The art's segments, read through the path suite as a plug-in reads them.
    std::vector<ZMPathSegment> Segments(const Art& art) {
        int16_t count = 0;
        EXPECT_EQ(paths->GetPathSegmentCount(H(art), &count), ZM_ERR_NONE);
        std::vector<ZMPathSegment> segments(static_cast<size_t>(count));
        EXPECT_EQ(paths->GetPathSegments(H(art), 0, count, segments.data()), ZM_ERR_NONE);
        return segments;
    }

    ZMLiveCornersHandle Load(const std::vector<ZMPathSegment>& segments, int32_t flags) {
        ZMLiveCornersHandle handle = nullptr;
        EXPECT_EQ(corners->NewCorners(&handle), ZM_ERR_NONE);
        EXPECT_EQ(corners->LoadFromSegments(handle, segments.data(),
                                            static_cast<int32_t>(segments.size()), flags),
                  ZM_ERR_NONE);
        return handle;
    }

    int32_t Count(ZMLiveCornersHandle handle) {
        int32_t count = -1;
        EXPECT_EQ(corners->CountCorners(handle, &count), ZM_ERR_NONE);
        return count;
    }

    Corner CornerAt(ZMLiveCornersHandle handle, int32_t index) {
        Corner corner{-1, -1, -1};
        EXPECT_EQ(corners->GetCornerType(handle, index, &corner.type), ZM_ERR_NONE);
        EXPECT_EQ(corners->GetCornerRoundingType(handle, index, &corner.roundingType), ZM_ERR_NONE);
        EXPECT_EQ(corners->GetCornerRadius(handle, index, &corner.radius), ZM_ERR_NONE);
        return corner;
    }

    const ZMLiveShapesSuite* shapes = nullptr;
    const ZMLiveCornersSuite* corners = nullptr;
    const ZMPathSuite* paths = nullptr;
    Art* rectangle = nullptr;
    Art* ellipse = nullptr;
    Art* triangle = nullptr;
};

TEST_F(LiveShapesSuiteTest, LiveShapesAreKnownWithTheirKind) {
    ZMBool isLive = -1;
    ASSERT_EQ(shapes->IsLiveShape(H(*rectangle), &isLive), ZM_ERR_NONE);
    EXPECT_EQ(isLive, 1);
    ASSERT_EQ(shapes->IsLiveShape(H(*triangle), &isLive), ZM_ERR_NONE);
    EXPECT_EQ(isLive, 0);
    ZMLiveShapeKind kind = -1;
    ASSERT_EQ(shapes->GetLiveShapeKind(H(*ellipse), &kind), ZM_ERR_NONE);
    EXPECT_EQ(kind, ZM_LIVE_SHAPE_ELLIPSE);
    EXPECT_EQ(shapes->GetLiveShapeKind(H(*triangle), &kind), ZM_ERR_NOT_FOUND);
}

TEST_F(LiveShapesSuiteTest, ALiveShapesSegmentsBringItsCorners) {
    ZMLiveCornersHandle handle = Load(Segments(*rectangle), ZM_LIVE_CORNERS_FROM_LIVE_SHAPE);
    ASSERT_EQ(Count(handle), 4);
    EXPECT_EQ(CornerAt(handle, 0), (Corner{0, 0, 5}));
    EXPECT_EQ(CornerAt(handle, 2), (Corner{2, 1, 7.5}));
    EXPECT_EQ(corners->DisposeCorners(handle), ZM_ERR_NONE);
}

TEST_F(LiveShapesSuiteTest, AnEllipseHasNoCorners) {
    ZMLiveCornersHandle handle = Load(Segments(*ellipse), ZM_LIVE_CORNERS_FROM_LIVE_SHAPE);
    EXPECT_EQ(Count(handle), 0);
    EXPECT_EQ(corners->DisposeCorners(handle), ZM_ERR_NONE);
}

TEST_F(LiveShapesSuiteTest, SegmentsOfNoLiveShapeMakeEveryCornerAnchorAPlainCorner) {
    // The triangle's three anchors are corners: radius 0, type and rounding 0.
    ZMLiveCornersHandle handle = Load(Segments(*triangle), ZM_LIVE_CORNERS_FROM_LIVE_SHAPE);
    ASSERT_EQ(Count(handle), 3);
    EXPECT_EQ(CornerAt(handle, 1), (Corner{0, 0, 0}));
    EXPECT_EQ(corners->DisposeCorners(handle), ZM_ERR_NONE);
}

TEST_F(LiveShapesSuiteTest, SegmentsThatDifferInOnePointAreNoLongerTheLiveShapes) {
    std::vector<ZMPathSegment> moved = Segments(*rectangle);
    moved[3].anchor.y += 1;
    ZMLiveCornersHandle handle = Load(moved, ZM_LIVE_CORNERS_FROM_LIVE_SHAPE);
    ASSERT_EQ(Count(handle), 4);  // the four corner anchors, not the live shape's corners
    EXPECT_EQ(CornerAt(handle, 2), (Corner{0, 0, 0}));
    EXPECT_EQ(corners->DisposeCorners(handle), ZM_ERR_NONE);
}

TEST_F(LiveShapesSuiteTest, LoadingFromAnchorsIgnoresTheLiveShape) {
    ZMLiveCornersHandle handle = Load(Segments(*rectangle), ZM_LIVE_CORNERS_FROM_ANCHORS);
    ASSERT_EQ(Count(handle), 4);
    EXPECT_EQ(CornerAt(handle, 2), (Corner{0, 0, 0}));
    EXPECT_EQ(corners->DisposeCorners(handle), ZM_ERR_NONE);
}

TEST_F(LiveShapesSuiteTest, ACornerOutsideTheCountIsABadArgument) {
    ZMLiveCornersHandle handle = Load(Segments(*rectangle), ZM_LIVE_CORNERS_FROM_LIVE_SHAPE);
    int32_t type = 0;
    double radius = 0;
    EXPECT_EQ(corners->GetCornerType(handle, 4, &type), ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(corners->GetCornerRoundingType(handle, -1, &type), ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(corners->GetCornerRadius(handle, 4, &radius), ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(corners->DisposeCorners(handle), ZM_ERR_NONE);
}

TEST_F(LiveShapesSuiteTest, ForeignOrDisposedCornersAndBadLoadsAreBadArguments) {
    int32_t count = 0;
    EXPECT_EQ(corners->CountCorners(zm::test::ForeignHandle<ZMLiveCornersHandle>(), &count),
              ZM_ERR_BAD_ARGUMENT);
    ZMLiveCornersHandle handle = nullptr;
    ASSERT_EQ(corners->NewCorners(&handle), ZM_ERR_NONE);
    std::vector<ZMPathSegment> segments = Segments(*triangle);
    EXPECT_EQ(corners->LoadFromSegments(handle, segments.data(), 3, 7), ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(corners->LoadFromSegments(handle, segments.data(), -1, 0), ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(corners->LoadFromSegments(handle, nullptr, 3, 0), ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(corners->NewCorners(nullptr), ZM_ERR_BAD_ARGUMENT);
    ASSERT_EQ(corners->DisposeCorners(handle), ZM_ERR_NONE);
    EXPECT_EQ(corners->CountCorners(handle, &count), ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(corners->DisposeCorners(handle), ZM_ERR_BAD_ARGUMENT);
}

TEST_F(LiveShapesSuiteTest, LoadingFromALiveShapeNeedsADocument) {
    std::vector<ZMPathSegment> segments = Segments(*rectangle);
    runtime.documents.CloseCurrent();
    ZMLiveCornersHandle handle = nullptr;
    ASSERT_EQ(corners->NewCorners(&handle), ZM_ERR_NONE);
    EXPECT_EQ(
        corners->LoadFromSegments(handle, segments.data(), 4, ZM_LIVE_CORNERS_FROM_LIVE_SHAPE),
        ZM_ERR_NO_DOCUMENT);
    EXPECT_EQ(corners->LoadFromSegments(handle, segments.data(), 4, ZM_LIVE_CORNERS_FROM_ANCHORS),
              ZM_ERR_NONE);
    EXPECT_EQ(Count(handle), 4);
    EXPECT_EQ(corners->DisposeCorners(handle), ZM_ERR_NONE);
    ZMBool isLive = 0;
    EXPECT_EQ(shapes->IsLiveShape(zm::test::ForeignHandle<ZMArtHandle>(), &isLive),
              ZM_ERR_NO_DOCUMENT);
}

}  // namespace
}  // namespace zm::host
