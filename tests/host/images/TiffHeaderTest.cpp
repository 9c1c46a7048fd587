#include "ImageFixtures.hpp"

#include <images/TiffHeader.hpp>

#include <gtest/gtest.h>

namespace zm::test {
namespace {

using host::images::ImageFault;
using host::images::PixelModel;
using host::images::ReadTiffHeader;

TEST(TiffHeaderTest, SeparatedPixelsOfTheCmykInkSetAreCmyk) {
    // Photometric 5, ink set 1, four samples of 8 bits.
    EXPECT_EQ(ReadFixture(ReadTiffHeader, "cmyk-3x2.tif"), Header(3, 2, PixelModel::Cmyk, 32));
}

TEST(TiffHeaderTest, APaletteImageIsIndexedRgbWithTheBitsOfAnIndex) {
    // Photometric 3, one sample of 4 bits.
    EXPECT_EQ(ReadFixture(ReadTiffHeader, "palette-5x3.tif"),
              Header(5, 3, PixelModel::Rgb, 4, true));
}

TEST(TiffHeaderTest, ADirectoryPastTheEndOfTheFileIsDamaged) {
    EXPECT_EQ(FaultOf(ReadTiffHeader, "truncated.tif"), ImageFault::Damaged);
}

}  // namespace
}  // namespace zm::test
