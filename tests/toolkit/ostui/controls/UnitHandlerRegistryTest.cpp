#include "ostui/controls/UnitHandlerRegistry.hpp"

#include <gtest/gtest.h>

#include <stdexcept>

namespace {

using ostui::controls::CustomUnit;
using ostui::controls::kShowAbbreviation;
using ostui::controls::Unit;
using ostui::controls::UnitHandlerRegistry;

TEST(UnitHandlerRegistryTest, PixelsPrintWithTheDecimalsAskedAndNoGrouping) {
    // 925.875 pt / 0.75 pt per pixel = 1234.5 px, printed with three decimals.
    EXPECT_EQ(UnitHandlerRegistry::Get().Format(Unit::Pixels, 925.875, 3), "1234.500 px");
}

TEST(UnitHandlerRegistryTest, MillimetresAndPicasAreWorkedOutFromPoints) {
    UnitHandlerRegistry registry;
    // 612 pt = 8.5 in = 8.5 * 25.4 mm = 215.9 mm.
    EXPECT_EQ(registry.Format(Unit::Millimeters, 612.0, 2), "215.90 mm");
    // 100 pt = 100 / 72 in = 3.5277... cm -> 3.53 cm.
    EXPECT_EQ(registry.Format(Unit::Centimeters, 100.0, 2), "3.53 cm");
    // 30 pt at 12 pt a pica = 2.5 pc.
    EXPECT_EQ(registry.Format(Unit::Picas, 30.0, 1), "2.5 pc");
    // 18 pt = 0.25 in.
    EXPECT_EQ(registry.Format(Unit::Inches, 18.0, 3), "0.250 in");
    EXPECT_EQ(registry.Format(Unit::Points, 12.0, 0), "12 pt");
}

TEST(UnitHandlerRegistryTest, AValueThatRoundsToZeroHasNoMinusSign) {
    EXPECT_EQ(UnitHandlerRegistry().Format(Unit::Points, -0.0001, 2), "0.00 pt");
}

TEST(UnitHandlerRegistryTest, HandlersAreFoundByUnitAndAbbreviation) {
    UnitHandlerRegistry registry;
    ASSERT_NE(registry.GetUnitHandler(Unit::Centimeters), nullptr);
    EXPECT_EQ(registry.GetUnitHandler(Unit::Centimeters)->Name(), "Centimeters");
    ASSERT_NE(registry.FindByAbbreviation("pc"), nullptr);
    EXPECT_EQ(registry.FindByAbbreviation("pc")->GetUnit(), Unit::Picas);
    EXPECT_EQ(registry.FindByAbbreviation("furlong"), nullptr);
}

// Plug-ins name units by these codes.
TEST(UnitHandlerRegistryTest, PointsAreUnitOneAndTheRulerIsCustomUnitTwo) {
    EXPECT_EQ(static_cast<int>(Unit::Points), 1);
    EXPECT_EQ(static_cast<int>(Unit::Pixels), 2);
    EXPECT_EQ(static_cast<int>(Unit::Picas), 6);
    EXPECT_EQ(static_cast<int>(CustomUnit::Ruler), 2);
}

TEST(UnitHandlerRegistryTest, WithoutASourceTheRulerStandsForPoints) {
    EXPECT_EQ(UnitHandlerRegistry().GetNativeUnit(CustomUnit::Ruler), Unit::Points);
}

TEST(UnitHandlerRegistryTest, TheSourceIsAskedEveryTimeUntilItIsTakenAway) {
    UnitHandlerRegistry registry;
    Unit current = Unit::Millimeters;
    registry.SetNativeUnitSource([&current](CustomUnit) { return current; });
    EXPECT_EQ(registry.GetNativeUnit(CustomUnit::Ruler), Unit::Millimeters);
    current = Unit::Picas;
    EXPECT_EQ(registry.GetNativeUnit(CustomUnit::Ruler), Unit::Picas);
    registry.SetNativeUnitSource({});
    EXPECT_EQ(registry.GetNativeUnit(CustomUnit::Ruler), Unit::Points);
}

TEST(UnitHandlerRegistryTest, AHandlerConvertsFromAnotherUnit) {
    UnitHandlerRegistry registry;
    auto points = registry.GetUnitHandler(Unit::Points);
    auto pixels = registry.GetUnitHandler(Unit::Pixels);
    auto inches = registry.GetUnitHandler(Unit::Inches);
    auto millimeters = registry.GetUnitHandler(Unit::Millimeters);
    EXPECT_DOUBLE_EQ(millimeters->Convert(72.0, *points), 25.4);  // 72 pt = 1 in = 25.4 mm
    EXPECT_DOUBLE_EQ(pixels->Convert(1.0, *inches), 96.0);        // 72 pt / 0.75 pt per px
    EXPECT_DOUBLE_EQ(points->Convert(3.0, *pixels), 2.25);        // 3 * 0.75 pt
}

TEST(UnitHandlerRegistryTest, AValueIsFormattedWithTheDecimalsAndOptionsAsked) {
    auto millimeters = UnitHandlerRegistry().GetUnitHandler(Unit::Millimeters);
    EXPECT_EQ(millimeters->FormatValue(2.5, 3, kShowAbbreviation, true), "2.500 mm");
    EXPECT_EQ(millimeters->FormatValue(2.5, 3, 0, true), "2.500");
    // The other option bits add nothing.
    EXPECT_EQ(millimeters->FormatValue(2.5, 3, 0xFFFF & ~kShowAbbreviation, true), "2.500");
    // At most three decimals: trailing zeros go, and the point with them when none is left.
    EXPECT_EQ(millimeters->FormatValue(2.5, 3, kShowAbbreviation, false), "2.5 mm");
    EXPECT_EQ(millimeters->FormatValue(12.0, 3, kShowAbbreviation, false), "12 mm");
    EXPECT_EQ(millimeters->FormatValue(1200.0, 0, 0, false), "1200");
    EXPECT_EQ(millimeters->FormatValue(-0.0001, 3, 0, false), "0");
    EXPECT_EQ(millimeters->FormatValue(1.23456, -2, 0, true), "1");
}

}  // namespace
