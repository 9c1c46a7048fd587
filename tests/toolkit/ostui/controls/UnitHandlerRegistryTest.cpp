#include "ostui/controls/UnitHandlerRegistry.hpp"

#include <gtest/gtest.h>

#include <stdexcept>

namespace {

using ostui::controls::Unit;
using ostui::controls::UnitHandlerRegistry;

TEST(UnitHandlerRegistryTest, PixelsPrintWithTheDecimalsAskedAndNoGrouping) {
    // 925.875 pt / 0.75 pt per pixel = 1234.5 px, printed with three decimals.
    EXPECT_EQ(UnitHandlerRegistry::Shared().Format(Unit::Pixels, 925.875, 3), "1234.500 px");
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
    ASSERT_NE(registry.Find(Unit::Centimeters), nullptr);
    EXPECT_EQ(registry.Find(Unit::Centimeters)->Name(), "Centimeters");
    ASSERT_NE(registry.FindByAbbreviation("pc"), nullptr);
    EXPECT_EQ(registry.FindByAbbreviation("pc")->GetUnit(), Unit::Picas);
    EXPECT_EQ(registry.FindByAbbreviation("furlong"), nullptr);
}

}  // namespace
