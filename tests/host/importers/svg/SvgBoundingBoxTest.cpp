#include <importers/svg/SvgBoundingBox.hpp>

#include <gtest/gtest.h>

namespace zm::host::svg {
namespace {

using document::Art;
using document::ArtType;
using document::Point;
using document::Segment;

Segment Corner(double x, double y) { return Segment{{x, y}, {x, y}, {x, y}, true}; }

TEST(SvgBoundingBoxTest, TheBoxIsTakenBackIntoUserUnits) {
    // User units to model: 0.75 pt per px, y flipped on a 75 pt page. Model x 15..30 and
    // y 45..30 come from user x 20..40 and y (75 - 45) / 0.75 = 40 to 60.
    Affine toModel{0.75, 0, 0, -0.75, 0, 75};
    Art path(ArtType::Path);
    path.path.segments = {Corner(15, 45), Corner(30, 45), Corner(30, 30), Corner(15, 30)};
    path.path.closed = true;
    auto box = UserBoundingBox(path, toModel);
    ASSERT_TRUE(box);
    EXPECT_NEAR(box->x, 20, 1e-9);
    EXPECT_NEAR(box->y, 40, 1e-9);
    EXPECT_NEAR(box->width, 20, 1e-9);
    EXPECT_NEAR(box->height, 20, 1e-9);
}

TEST(SvgBoundingBoxTest, NoBoxWithoutGeometryOrForAFlatMap) {
    Art empty(ArtType::Group);
    EXPECT_FALSE(UserBoundingBox(empty, Affine{}));
    Art path(ArtType::Path);
    path.path.segments = {Corner(1, 1)};
    EXPECT_FALSE(UserBoundingBox(path, Affine::Scale(0, 0)));
}

TEST(SvgBoundingBoxTest, UnitsOfTheBoxMapItsCorners) {
    // The unit square's far corner lands on the box's far corner (10 + 4, 20 + 8).
    Affine units = BoundingBoxUnits(UserBox{10, 20, 4, 8});
    EXPECT_EQ(units.Apply({0, 0}), (Point{10, 20}));
    EXPECT_EQ(units.Apply({1, 1}), (Point{14, 28}));
}

}  // namespace
}  // namespace zm::host::svg
