#include <inventory/ImageMeasures.hpp>

#include <gtest/gtest.h>

namespace {

using tolvane::ImageChannels;
using tolvane::ImageKilobytes;
using tolvane::ImagePixelExtent;
using tolvane::ImageResolution;

TEST(ImageMeasuresTest, AOneBitImageHasOneChannel) { EXPECT_EQ(ImageChannels(1), 1); }

// Every 8 bits count as a channel, alpha and 16-bit channels included.
TEST(ImageMeasuresTest, OtherImagesHaveAChannelForEveryEightBits) {
    EXPECT_EQ(ImageChannels(8), 1);
    EXPECT_EQ(ImageChannels(24), 3);
    EXPECT_EQ(ImageChannels(32), 4);  // RGB and alpha
    EXPECT_EQ(ImageChannels(48), 6);  // RGB at 16 bits a channel
    EXPECT_EQ(ImageChannels(4), 0);   // 4-bit indices: 4 / 8, truncated
    EXPECT_EQ(ImageChannels(12), 1);  // 12 / 8, truncated
}

TEST(ImageMeasuresTest, ThePixelsRunFromTheLowEdgeToTheHighOne) {
    EXPECT_EQ(ImagePixelExtent(0, 640), 640);
    EXPECT_EQ(ImagePixelExtent(10, 25), 15);
}

// 3 x 480 x 640 = 921,600; / 1024 = 900.
TEST(ImageMeasuresTest, An8BitRgbImageOf640By480PixelsIs900K) {
    EXPECT_EQ(ImageKilobytes(24, 640, 480), 900);
}

// 1000 x 1000 = 1,000,000; / 1024 = 976 (976.6 truncated); / 8 = 122.
TEST(ImageMeasuresTest, ABitmapIsAnEighthOfItsPixelsInKilobytes) {
    EXPECT_EQ(ImageKilobytes(1, 1000, 1000), 122);
}

// 6 x 50 x 100 = 30,000; / 1024 = 29 (29.3 truncated); the 16 bits a channel count as twice
// the channels of 8.
TEST(ImageMeasuresTest, SixteenBitsAChannelCountAsTwiceTheChannels) {
    EXPECT_EQ(ImageKilobytes(48, 100, 50), 29);
}

TEST(ImageMeasuresTest, LessThanAKilobyteIsZero) {
    EXPECT_EQ(ImageKilobytes(32, 16, 8), 0);  // 4 x 8 x 16 = 512
}

// 4 x 10,000 = 40,000, x 100,000 = 4,000,000,000, past 2^31: as a signed 32-bit product it is
// 4,000,000,000 - 4,294,967,296 = -294,967,296, and / 1024 = -288,054 exactly.
TEST(ImageMeasuresTest, AProductPastThirtyTwoBitsWrapsAsTheArithmeticDoes) {
    EXPECT_EQ(ImageKilobytes(32, 100000, 10000), -288054);
}

// 100 / 72 x 72 = 100; 640 / 480 x 72 = 96; 1000 / 75 x 72 = 960.
TEST(ImageMeasuresTest, TheResolutionIsPixelsOverPointsTimesSeventyTwo) {
    EXPECT_FLOAT_EQ(ImageResolution(100, 72.0f), 100.0f);
    EXPECT_FLOAT_EQ(ImageResolution(640, 480.0f), 96.0f);
    EXPECT_FLOAT_EQ(ImageResolution(1000, 75.0f), 960.0f);
}

TEST(ImageMeasuresTest, OverALengthOfZeroTheResolutionIsZero) {
    EXPECT_EQ(ImageResolution(9, 0.0f), 0.0f);
    EXPECT_EQ(ImageResolution(0, 0.0f), 0.0f);
}

}  // namespace
