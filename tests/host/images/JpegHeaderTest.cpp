#include "ImageFixtures.hpp"

#include <images/JpegHeader.hpp>

#include <gtest/gtest.h>

namespace zm::test {
namespace {

using host::images::ImageFault;
using host::images::PixelModel;
using host::images::ReadJpegHeader;

TEST(JpegHeaderTest, FourComponentsWithAnAdobeMarkerAreCmyk) {
    // Four components of 8 bits, Adobe transform 0.
    EXPECT_EQ(ReadFixture(ReadJpegHeader, "cmyk-16x8.jpg"), Header(16, 8, PixelModel::Cmyk, 32));
}

TEST(JpegHeaderTest, OneComponentIsGrayAndThreeAreRgb) {
    // 8 bits a component; three components without an Adobe marker are YCbCr, RGB pixels.
    EXPECT_EQ(ReadFixture(ReadJpegHeader, "gray-9x9.jpg"), Header(9, 9, PixelModel::Gray, 8));
    EXPECT_EQ(ReadFixture(ReadJpegHeader, "color-8x16.jpg"), Header(8, 16, PixelModel::Rgb, 24));
}

TEST(JpegHeaderTest, AHeaderCutShortIsDamagedAndNothingExits) {
    // libjpeg's own handler would end the process here.
    EXPECT_EQ(FaultOf(ReadJpegHeader, "truncated.jpg"), ImageFault::Damaged);
}

TEST(JpegHeaderTest, AFileOfAnotherFormatIsDamaged) {
    EXPECT_EQ(FaultOf(ReadJpegHeader, "rgb-640x480.png"), ImageFault::Damaged);
}

}  // namespace
}  // namespace zm::test
