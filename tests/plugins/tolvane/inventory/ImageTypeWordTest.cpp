#include "plugins/tolvane/inventory/ImageInventoryFixture.hpp"

#include <inventory/ImageTypeWord.hpp>

#include <zelmora/ZMColorSpaceSuite.h>
#include <zelmora/ZMRasterSuite.h>

#include <gtest/gtest.h>

#include <string>

namespace {

constexpr int32_t kCountColorants = 1;

// Ink images need a colour space to count inks in: those of embedded.svg's one-ink
// ("separation") and three-ink ("devicen") images.
class ImageTypeWordTest : public zm::test::ImageInventoryFixture {
protected:
    void SetUp() override {
        ImageInventoryFixture::SetUp();
        OpenImages("embedded.svg");
        oneInk = SpaceOf("separation");
        threeInks = SpaceOf("devicen");
    }

    ZMColorSpaceHandle SpaceOf(const std::string& id) {
        ZMColorSpaceHandle space = nullptr;
        EXPECT_EQ(tolvane::sRasterSuite->GetRasterColorSpace(Art(id), &space), ZM_ERR_NONE);
        return space;
    }

    std::string WordOf(int16_t code, int16_t bits = 8, ZMColorSpaceHandle space = nullptr) {
        ZMRasterRecord record{};
        record.colorSpace = code;
        record.bitsPerPixel = bits;
        return Text(tolvane::ImageTypeWord(record, space).Get());
    }

    ZMColorSpaceHandle oneInk = nullptr;
    ZMColorSpaceHandle threeInks = nullptr;
};

TEST_F(ImageTypeWordTest, GrayIsABitmapAtOneBitAndGrayscaleOtherwise) {
    EXPECT_EQ(WordOf(0, 1), "Black & White Bitmap");
    EXPECT_EQ(WordOf(0, 8), "Grayscale");
    EXPECT_EQ(WordOf(0, 16), "Grayscale");
}

TEST_F(ImageTypeWordTest, TheProcessCodesNameTheirModels) {
    EXPECT_EQ(WordOf(1), "RGB");
    EXPECT_EQ(WordOf(2), "CMYK");
    EXPECT_EQ(WordOf(3), "Lab");
}

// Alpha adds 16 to the code; a transparent gray image of 1 bit is no bitmap.
TEST_F(ImageTypeWordTest, AlphaMakesEachATransparentOne) {
    EXPECT_EQ(WordOf(16, 1), "Transparent Grayscale");
    EXPECT_EQ(WordOf(16, 16), "Transparent Grayscale");
    EXPECT_EQ(WordOf(17), "Transparent RGB");
    EXPECT_EQ(WordOf(18), "Transparent CMYK");
    EXPECT_EQ(WordOf(19), "Transparent Lab");
}

// Codes 4, 5 and 6 alike: what counts is the space's number of inks, not the code.
TEST_F(ImageTypeWordTest, InkImagesAreSingleInkWhenTheirSpaceHasOneInk) {
    for (int16_t code : {4, 5, 6}) {
        SCOPED_TRACE(code);
        EXPECT_EQ(WordOf(code, 8, oneInk), "Single Ink Image");
        EXPECT_EQ(WordOf(code, 8, threeInks), "Mixed Ink Image");
        EXPECT_EQ(WordOf(code + 16, 16, oneInk), "Transparent Single Ink Image");
        EXPECT_EQ(WordOf(code + 16, 16, threeInks), "Transparent Mixed Ink Image");
    }
}

// Placed images have no colour space to ask.
TEST_F(ImageTypeWordTest, WithoutASpaceAnInkImageIsMixed) {
    EXPECT_EQ(WordOf(4, 8, nullptr), "Mixed Ink Image");
    EXPECT_EQ(WordOf(20, 16, nullptr), "Transparent Mixed Ink Image");
}

TEST_F(ImageTypeWordTest, ASpaceWhoseInksCannotBeCountedIsMixed) {
    runtime.faults.FailCall(ZM_COLOR_SPACE_SUITE_NAME, kCountColorants, ZM_ERR_INTERNAL);
    EXPECT_EQ(WordOf(4, 8, oneInk), "Mixed Ink Image");
}

// 255 is the code a record has before the host fills it.
TEST_F(ImageTypeWordTest, ACodeOutsideTheHostsGivesAnEmptyWord) {
    for (int16_t code : {7, 15, 23, 255, -1}) {
        EXPECT_EQ(WordOf(code), "") << code;
    }
}

}  // namespace
