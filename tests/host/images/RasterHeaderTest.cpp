#include "ImageFixtures.hpp"

#include <images/RasterHeader.hpp>

#include <gtest/gtest.h>

namespace zm::test {
namespace {

using host::images::CheckDescribable;
using host::images::ImageDecodeError;
using host::images::ImageFault;
using host::images::PixelModel;

std::optional<ImageFault> Refusal(uint32_t width, uint32_t height, int32_t bits) {
    try {
        CheckDescribable(Header(width, height, PixelModel::Rgb, bits));
    } catch (const ImageDecodeError& error) {
        return error.Fault();
    }
    return std::nullopt;
}

TEST(RasterHeaderTest, SidesUpToAMillionPixelsAreDescribed) {
    EXPECT_EQ(Refusal(1'000'000, 100, 24), std::nullopt);
    EXPECT_EQ(Refusal(100, 1'000'000, 24), std::nullopt);
    EXPECT_EQ(Refusal(1'000'001, 1, 24), ImageFault::Oversized);
    EXPECT_EQ(Refusal(1, 1'000'001, 24), ImageFault::Oversized);
}

TEST(RasterHeaderTest, UpToAHundredMillionPixelsAreDescribed) {
    EXPECT_EQ(Refusal(10'000, 10'000, 24), std::nullopt);           // exactly 100,000,000
    EXPECT_EQ(Refusal(10'001, 10'000, 24), ImageFault::Oversized);  // 10,000 more
}

TEST(RasterHeaderTest, NoPixelsOrBitsAreRefused) {
    EXPECT_EQ(Refusal(0, 10, 24), ImageFault::Oversized);
    EXPECT_EQ(Refusal(10, 0, 24), ImageFault::Oversized);
    EXPECT_EQ(Refusal(10, 10, 0), ImageFault::Oversized);
}

TEST(RasterHeaderTest, UpToOneHundredSixtyBitsAPixelAreDescribed) {
    EXPECT_EQ(Refusal(10, 10, 160), std::nullopt);
    EXPECT_EQ(Refusal(10, 10, 161), ImageFault::Oversized);
}

}  // namespace
}  // namespace zm::test
