#include "ImageFixtures.hpp"

#include <images/TiffHeader.hpp>

#include <gtest/gtest.h>

#include <string>
#include <utility>
#include <vector>

namespace zm::test {
namespace {

using host::images::ImageFault;
using host::images::PixelModel;
using host::images::RasterHeader;
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

RasterHeader InkHeader(uint32_t width, uint32_t height, std::vector<std::string> inks) {
    // 8 bits a sample, one sample an ink.
    RasterHeader header =
        Header(width, height, PixelModel::Inks, static_cast<int32_t>(inks.size()) * 8);
    header.inks = std::move(inks);
    return header;
}

// Photometric 5, ink set 2, InkNames "Gray", "Orange", "Gray": three samples of 8 bits.
TEST(TiffHeaderTest, SeparatedPixelsOfNamedInksAreThoseInksInChannelOrder) {
    EXPECT_EQ(ReadFixture(ReadTiffHeader, "inks-gray-orange-gray-4x2.tif"),
              InkHeader(4, 2, {"Gray", "Orange", "Gray"}));
}

TEST(TiffHeaderTest, OneNamedInkIsAnImageOfThatInk) {
    EXPECT_EQ(ReadFixture(ReadTiffHeader, "ink-orange-6x4.tif"), InkHeader(6, 4, {"Orange"}));
}

// Ink set 2 says the inks are not CMYK, and no InkNames tag says what they are.
TEST(TiffHeaderTest, SeparatedPixelsOfInksWithoutNamesAreUnrecognized) {
    EXPECT_EQ(FaultOf(ReadTiffHeader, "inks-unnamed.tif"), ImageFault::Unrecognized);
}

// NumberOfInks says 5 where InkNames holds two names: the two names are the inks.
TEST(TiffHeaderTest, ANumberOfInksPastTheNamesCountsOnlyTheNames) {
    EXPECT_EQ(ReadFixture(ReadTiffHeader, "inks-miscounted.tif"),
              InkHeader(2, 2, {"Cyan Ink", "Magenta Ink"}));
}

TEST(TiffHeaderTest, ADirectoryPastTheEndOfTheFileIsDamaged) {
    EXPECT_EQ(FaultOf(ReadTiffHeader, "truncated.tif"), ImageFault::Damaged);
}

}  // namespace
}  // namespace zm::test
