#include <importers/svg/SvgLength.hpp>
#include <importers/svg/SvgNumbers.hpp>

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <vector>

namespace zm::host::svg {
namespace {

TEST(SvgNumbersTest, NumbersNeedNoSeparatorWhereSignOrPointEndsThem) {
    // ".5.5" is two numbers and "-3e2" starts a new one: -300.
    EXPECT_EQ(ParseNumberList("10,20 .5.5-3e2"), (std::vector<double>{10, 20, 0.5, 0.5, -300}));
}

TEST(SvgNumbersTest, AListStopsAtTheFirstBadEntry) {
    EXPECT_EQ(ParseNumberList("1 2 x 3"), (std::vector<double>{1, 2}));
}

TEST(SvgNumbersTest, NonFiniteAndOutOfRangeValuesAreNoNumbers) {
    EXPECT_FALSE(ParseNumber("inf"));
    EXPECT_FALSE(ParseNumber("NaN"));
    EXPECT_FALSE(ParseNumber("1e400"));  // beyond double
    EXPECT_EQ(ParseNumber("1e308"), 1e308);
    EXPECT_EQ(ParseNumber(" +.5 "), 0.5);
    EXPECT_FALSE(ParseNumber("5px"));
}

TEST(SvgLengthTest, AbsoluteUnitsConvertToCssPixels) {
    EXPECT_DOUBLE_EQ(ToPixels(*ParseLength("12pt")), 16);    // 12 / 0.75
    EXPECT_DOUBLE_EQ(ToPixels(*ParseLength("1in")), 96);     // CSS inch
    EXPECT_DOUBLE_EQ(ToPixels(*ParseLength("25.4mm")), 96);  // one inch
    EXPECT_DOUBLE_EQ(ToPixels(*ParseLength("2.54cm")), 96);  // one inch
    EXPECT_DOUBLE_EQ(ToPixels(*ParseLength("1pc")), 16);     // 12 pt
    EXPECT_DOUBLE_EQ(ToPixels(*ParseLength("7")), 7);        // user units are pixels
    EXPECT_DOUBLE_EQ(ToPixels(*ParseLength("7PX")), 7);      // units ignore case
}

TEST(SvgLengthTest, RelativeUnitsUseTheirBases) {
    EXPECT_DOUBLE_EQ(ToPixels(*ParseLength("50%"), 200), 100);
    EXPECT_DOUBLE_EQ(ToPixels(*ParseLength("2em"), 0, 10), 20);
    EXPECT_DOUBLE_EQ(ToPixels(*ParseLength("2ex"), 0, 10), 10);  // half an em
}

TEST(SvgLengthTest, AnExponentIsReadBeforeAUnit) {
    EXPECT_DOUBLE_EQ(ToPixels(*ParseLength("2e1px")), 20);
    auto em = ParseLength("2em");
    ASSERT_TRUE(em);
    EXPECT_EQ(em->unit, LengthUnit::Em);
}

TEST(SvgLengthTest, UnknownUnitsAndNonFiniteValuesAreNoLengths) {
    EXPECT_FALSE(ParseLength("3furlongs"));
    EXPECT_FALSE(ParseLength("infpx"));
    EXPECT_FALSE(ParseLength(""));
}

TEST(SvgLengthTest, HugeValuesArePinnedToTheCoordinateLimit) {
    EXPECT_EQ(ToPixels(*ParseLength("1e308in")), kCoordinateLimit);
    EXPECT_EQ(ClampCoordinate(-1e300), -kCoordinateLimit);
    EXPECT_EQ(ClampCoordinate(std::numeric_limits<double>::quiet_NaN()), 0);
}

TEST(SvgLengthTest, RulerUnitsComeFromUnitNames) {
    using document::RulerUnits;
    EXPECT_EQ(RulerUnitsNamed("mm"), RulerUnits::Millimeters);
    EXPECT_EQ(RulerUnitsNamed("pt"), RulerUnits::Points);
    EXPECT_EQ(RulerUnitsNamed("pc"), RulerUnits::Picas);
    EXPECT_EQ(RulerUnitsOf(LengthUnit::None), RulerUnits::Pixels);
    EXPECT_FALSE(RulerUnitsNamed("%"));
    EXPECT_FALSE(RulerUnitsNamed("parsecs"));
}

}  // namespace
}  // namespace zm::host::svg
