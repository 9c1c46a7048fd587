#include <importers/svg/SvgTransform.hpp>

#include <gtest/gtest.h>

namespace zm::host::svg {
namespace {

using document::Point;

Point Map(const char* transform, Point p) {
    auto parsed = ParseTransform(transform);
    EXPECT_TRUE(parsed) << transform;
    return parsed ? parsed->Apply(p) : Point{};
}

TEST(SvgTransformTest, AListAppliesItsLastEntryFirst) {
    // scale(2) takes (1,1) to (2,2); the translation then adds (10,20).
    EXPECT_EQ(Map("translate(10 20) scale(2)", {1, 1}), (Point{12, 22}));
}

TEST(SvgTransformTest, RotationTurnsTowardsPositiveY) {
    Point p = Map("rotate(90)", {1, 0});
    EXPECT_NEAR(p.x, 0, 1e-12);
    EXPECT_NEAR(p.y, 1, 1e-12);
}

TEST(SvgTransformTest, RotationAboutAPointKeepsThatPoint) {
    // (20,10) is 10 to the right of (10,10); a quarter turn puts it 10 below: (10,20).
    Point p = Map("rotate(90, 10, 10)", {20, 10});
    EXPECT_NEAR(p.x, 10, 1e-12);
    EXPECT_NEAR(p.y, 20, 1e-12);
}

TEST(SvgTransformTest, MatrixSkewAndTranslateWithOneArgument) {
    EXPECT_EQ(Map("matrix(1 0 0 1 5 6)", {0, 0}), (Point{5, 6}));
    Point skewed = Map("skewX(45)", {0, 10});  // x moves by tan 45 * y = 10
    EXPECT_NEAR(skewed.x, 10, 1e-12);
    EXPECT_EQ(Map("translate(7)", {0, 0}), (Point{7, 0}));
}

TEST(SvgTransformTest, AListWithASyntaxErrorIsIgnoredWhole) {
    EXPECT_FALSE(ParseTransform("translate(10"));
    EXPECT_FALSE(ParseTransform("wobble(1)"));
    EXPECT_FALSE(ParseTransform("scale(1 2 3)"));
    EXPECT_FALSE(ParseTransform("translate(1 x)"));
}

TEST(SvgTransformTest, LengthScaleIsTheRootOfTheAreaFactor) {
    EXPECT_DOUBLE_EQ(Affine::Scale(2, 8).LengthScale(), 4);  // area factor 16
}

TEST(SvgTransformTest, AbsurdTransformsGiveFiniteCoordinates) {
    Point p = Map("scale(1e308) scale(1e308)", {1, -1});
    EXPECT_EQ(p, (Point{1e9, -1e9}));  // pinned to the coordinate limit
}

TEST(SvgTransformTest, BoundsOfATurnedRectangleEncloseItsCorners) {
    // A 10 x 20 rectangle turned a quarter: x from -20 to 0, y from 0 to 10.
    auto bounds = TransformedBounds(Affine::Rotate(90), 0, 0, 10, 20);
    EXPECT_NEAR(bounds.left, -20, 1e-12);
    EXPECT_NEAR(bounds.right, 0, 1e-12);
    EXPECT_NEAR(bounds.bottom, 0, 1e-12);
    EXPECT_NEAR(bounds.top, 10, 1e-12);
}

TEST(SvgTransformTest, TheInverseUndoesTheMap) {
    // scale(2, 4) then translate(10 20): (1, 1) goes to (12, 24); the inverse brings it back.
    Affine map = Affine::Translate(10, 20) * Affine::Scale(2, 4);
    auto inverse = map.Inverse();
    ASSERT_TRUE(inverse);
    EXPECT_EQ(map.Apply({1, 1}), (Point{12, 24}));
    EXPECT_EQ(inverse->Apply({12, 24}), (Point{1, 1}));
}

TEST(SvgTransformTest, AFlatteningMapHasNoInverse) {
    EXPECT_FALSE(Affine::Scale(0, 1).Inverse());  // every point lands on the y axis
}

}  // namespace
}  // namespace zm::host::svg
