#include "ImageFixtures.hpp"

#include <images/RasterHeaderReader.hpp>
#include <support/FileBytes.hpp>

#include <gtest/gtest.h>

namespace zm::test {
namespace {

using host::images::ImageDecodeError;
using host::images::ImageFault;
using host::images::PixelModel;

host::images::RasterHeader ReadStream(std::FILE* stream) {
    return host::images::ReadRasterHeader(stream);
}

std::optional<ImageFault> FaultOfImage(const host::document::Image& image) {
    try {
        host::images::ReadRasterHeader(image);
    } catch (const ImageDecodeError& error) {
        return error.Fault();
    }
    return std::nullopt;
}

host::document::Image Embedded(const std::string& bytes) {
    host::document::Image image;
    image.embedded = true;
    image.data.assign(bytes.begin(), bytes.end());
    image.mediaType = "image/png";
    return image;
}

TEST(RasterHeaderReaderTest, EachFormatIsToldBySignature) {
    EXPECT_EQ(ReadFixture(ReadStream, "rgb-640x480.png").model, PixelModel::Rgb);
    EXPECT_EQ(ReadFixture(ReadStream, "cmyk-16x8.jpg"), Header(16, 8, PixelModel::Cmyk, 32));
    EXPECT_EQ(ReadFixture(ReadStream, "cmyk-3x2.tif"), Header(3, 2, PixelModel::Cmyk, 32));
}

TEST(RasterHeaderReaderTest, ANameDoesNotMakeAnImage) {
    EXPECT_EQ(FaultOf(ReadStream, "not-an-image.png"), ImageFault::Unrecognized);
    EXPECT_EQ(FaultOf(ReadStream, "art.eps"), ImageFault::Unrecognized);
}

TEST(RasterHeaderReaderTest, AbsurdDimensionsAreTooLarge) {
    // 100,000 x 100,000 is 10^10 pixels; 2,000,000 is twice the longest side.
    EXPECT_EQ(FaultOf(ReadStream, "absurd-area.png"), ImageFault::Oversized);
    EXPECT_EQ(FaultOf(ReadStream, "absurd-width.png"), ImageFault::Oversized);
}

TEST(RasterHeaderReaderTest, DamagedFilesOfEachFormatAreDamaged) {
    EXPECT_EQ(FaultOf(ReadStream, "truncated.png"), ImageFault::Damaged);
    EXPECT_EQ(FaultOf(ReadStream, "truncated.jpg"), ImageFault::Damaged);
    EXPECT_EQ(FaultOf(ReadStream, "truncated.tif"), ImageFault::Damaged);
}

TEST(RasterHeaderReaderTest, AnEmbeddedImageIsReadFromItsBytes) {
    host::document::Image image = Embedded(ReadFileBytes(ImageFixture("rgba-20x10.png")));
    EXPECT_EQ(host::images::ReadRasterHeader(image),
              Header(20, 10, PixelModel::Rgb, 32, false, true));
}

TEST(RasterHeaderReaderTest, EmbeddedBytesCutShortOrAbsentAreDamaged) {
    std::string png = ReadFileBytes(ImageFixture("rgb-640x480.png"));
    EXPECT_EQ(FaultOfImage(Embedded(png.substr(0, 30))), ImageFault::Damaged);
    EXPECT_EQ(FaultOfImage(Embedded("")), ImageFault::Damaged);
}

// Reads the bytes as an embedded image; false when anything but a description or an
// ImageDecodeError comes out.
bool EndsCleanly(const std::string& bytes) {
    try {
        host::images::ReadRasterHeader(Embedded(bytes));
    } catch (const ImageDecodeError&) {
    } catch (...) {
        return false;
    }
    return true;
}

const char* const kEveryFixture[] = {
    "rgb-640x480.png", "bitmap-1000x1000.png", "rgb16-100x50.png", "palette-4x2.png",
    "rgba-20x10.png",  "cmyk-16x8.jpg",        "gray-9x9.jpg",     "color-8x16.jpg",
    "cmyk-3x2.tif",    "palette-5x3.tif",      "inks-gray-orange-gray-4x2.tif",
    "ink-orange-6x4.tif",
};

TEST(RasterHeaderReaderTest, EveryPrefixOfEveryImageEndsCleanly) {
    for (const char* name : kEveryFixture) {
        std::string bytes = ReadFileBytes(ImageFixture(name));
        for (std::size_t length = 0; length <= bytes.size() && length <= 400; ++length) {
            EXPECT_TRUE(EndsCleanly(bytes.substr(0, length))) << name << " cut at " << length;
        }
    }
}

TEST(RasterHeaderReaderTest, EveryFlippedHeaderByteEndsCleanly) {
    for (const char* name : kEveryFixture) {
        std::string bytes = ReadFileBytes(ImageFixture(name));
        for (std::size_t at = 0; at < bytes.size() && at < 200; ++at) {
            std::string flipped = bytes;
            flipped[at] = static_cast<char>(flipped[at] ^ 0xFF);
            EXPECT_TRUE(EndsCleanly(flipped)) << name << " flipped at " << at;
        }
    }
}

TEST(RasterHeaderReaderTest, ALinkedImageIsReadFromItsFile) {
    host::document::Image image;
    image.file = ImageFixture("palette-5x3.tif");
    EXPECT_EQ(host::images::ReadRasterHeader(image), Header(5, 3, PixelModel::Rgb, 4, true));
    image.file = ImageFixture("gone.png");
    EXPECT_EQ(FaultOfImage(image), ImageFault::Damaged);
}

}  // namespace
}  // namespace zm::test
