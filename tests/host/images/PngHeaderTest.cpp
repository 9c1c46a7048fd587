#include "ImageFixtures.hpp"

#include <images/PngHeader.hpp>

#include <gtest/gtest.h>

namespace zm::test {
namespace {

using host::images::ImageFault;
using host::images::PixelModel;
using host::images::ReadPngHeader;

TEST(PngHeaderTest, AnRgbImageOfEightBitsHasTwentyFourBitsAPixel) {
    // Colour type 2, three channels of 8 bits.
    EXPECT_EQ(ReadFixture(ReadPngHeader, "rgb-640x480.png"), Header(640, 480, PixelModel::Rgb, 24));
}

TEST(PngHeaderTest, AOneBitGrayImageHasOneBitAPixel) {
    EXPECT_EQ(ReadFixture(ReadPngHeader, "bitmap-1000x1000.png"),
              Header(1000, 1000, PixelModel::Gray, 1));
}

TEST(PngHeaderTest, SixteenBitsAChannelCountForEveryChannel) {
    // Three channels of 16 bits.
    EXPECT_EQ(ReadFixture(ReadPngHeader, "rgb16-100x50.png"), Header(100, 50, PixelModel::Rgb, 48));
}

TEST(PngHeaderTest, APaletteImageIsIndexedRgbWithTheBitsOfAnIndex) {
    // Colour type 3: 8-bit indices into an RGB palette.
    EXPECT_EQ(ReadFixture(ReadPngHeader, "palette-4x2.png"),
              Header(4, 2, PixelModel::Rgb, 8, true));
}

TEST(PngHeaderTest, AlphaIsAChannelOfItsOwn) {
    // Colour type 6: red, green, blue and alpha, 8 bits each.
    EXPECT_EQ(ReadFixture(ReadPngHeader, "rgba-20x10.png"),
              Header(20, 10, PixelModel::Rgb, 32, false, true));
}

TEST(PngHeaderTest, ATruncatedOrCorruptHeaderIsDamaged) {
    EXPECT_EQ(FaultOf(ReadPngHeader, "truncated.png"), ImageFault::Damaged);
    EXPECT_EQ(FaultOf(ReadPngHeader, "bad-checksum.png"), ImageFault::Damaged);
}

TEST(PngHeaderTest, AHugeSizeIsReadAsWrittenForTheCallerToJudge) {
    // libpng's own limits would call it damaged; the host's limits call it too large.
    EXPECT_EQ(ReadFixture(ReadPngHeader, "absurd-area.png"),
              Header(100000, 100000, PixelModel::Gray, 8));
}

}  // namespace
}  // namespace zm::test
