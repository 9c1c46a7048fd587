#include "ImageSuitesFixture.hpp"

#include <zelmora/ZMPlacedSuite.h>

#include <gtest/gtest.h>

#include <cmath>
#include <cstddef>

namespace zm::test {
namespace {

static_assert(offsetof(ZMPlacedSuite, GetPlacedFilePath) == 0);
static_assert(offsetof(ZMPlacedSuite, GetPlacedRasterInfo) == 2 * sizeof(void*));
static_assert(sizeof(ZMRasterRecord) == 20);
static_assert(offsetof(ZMRasterRecord, colorSpace) == 16);
static_assert(offsetof(ZMRasterRecord, bitsPerPixel) == 18);

class PlacedSuiteTest : public ImageSuitesFixture {
protected:
    void SetUp() override {
        ImageSuitesFixture::SetUp();
        Acquire(ZM_PLACED_SUITE_NAME, ZM_PLACED_SUITE_VERSION, placed);
    }

    // The record and raster flag of the placed art named `name`, from a record preset as a
    // caller presets it.
    std::pair<ZMRasterRecord, int32_t> RasterInfo(const char* name) {
        ZMRasterRecord record = Unset();
        int32_t isRaster = -1;
        EXPECT_EQ(placed->GetPlacedRasterInfo(ArtNamed(name), &record, &isRaster), ZM_ERR_NONE)
            << name;
        return {record, isRaster};
    }

    std::filesystem::path FileOf(const char* name) {
        ZMFilePath path = MadePath();
        EXPECT_EQ(placed->GetPlacedFilePath(ArtNamed(name), path), ZM_ERR_NONE);
        return PathOf(path).lexically_normal();
    }

    const ZMPlacedSuite* placed = nullptr;
};

TEST_F(PlacedSuiteTest, ARasterFileIsDescribedFromItsHeader) {
    // 640 x 480 RGB of 8 bits a channel: 24 bits a pixel.
    EXPECT_EQ(RasterInfo("photo"), std::make_pair(Record(640, 480, ZM_RASTER_RGB, 24), 1));
}

TEST_F(PlacedSuiteTest, EachKindOfImageHasItsCodeAndBits) {
    // 1-bit gray; three channels of 16 bits; 8-bit palette indices, whose colours are RGB.
    EXPECT_EQ(RasterInfo("bitmap"), std::make_pair(Record(1000, 1000, ZM_RASTER_GRAY, 1), 1));
    EXPECT_EQ(RasterInfo("deep"), std::make_pair(Record(100, 50, ZM_RASTER_RGB, 48), 1));
    EXPECT_EQ(RasterInfo("palette"), std::make_pair(Record(4, 2, ZM_RASTER_RGB, 8), 1));
    // Four 8-bit channels, from JPEG and from TIFF; 4-bit palette indices over RGB.
    EXPECT_EQ(RasterInfo("cmyk"), std::make_pair(Record(16, 8, ZM_RASTER_CMYK, 32), 1));
    EXPECT_EQ(RasterInfo("tiff"), std::make_pair(Record(3, 2, ZM_RASTER_CMYK, 32), 1));
    EXPECT_EQ(RasterInfo("tiff-palette"), std::make_pair(Record(5, 3, ZM_RASTER_RGB, 4), 1));
}

TEST_F(PlacedSuiteTest, AnImagePlacedAtSeventyTwoPointsHasTheSizeOfItsPixelsPerInch) {
    // 96 px are 72 pt; the file is 100 x 100 pixels of 8-bit gray, so 100 pixels an inch.
    ZMArtHandle square = ArtNamed("square");
    ZMRealRect bounds{};
    EXPECT_EQ(art->GetArtBounds(square, &bounds), ZM_ERR_NONE);
    EXPECT_DOUBLE_EQ(bounds.right - bounds.left, 72.0);
    EXPECT_DOUBLE_EQ(std::fabs(bounds.top - bounds.bottom), 72.0);
    EXPECT_EQ(RasterInfo("square"), std::make_pair(Record(100, 100, ZM_RASTER_GRAY, 8), 1));
}

TEST_F(PlacedSuiteTest, AFileThatIsNoImageLeavesTheRecordAsTheCallerSetIt) {
    EXPECT_EQ(RasterInfo("missing"), std::make_pair(Unset(), 0));
    EXPECT_EQ(RasterInfo("eps"), std::make_pair(Unset(), 0));
}

TEST_F(PlacedSuiteTest, ADamagedOrAbsurdImageIsPlacedAsAFileThatIsNoImage) {
    EXPECT_EQ(RasterInfo("damaged"), std::make_pair(Unset(), 0));
    EXPECT_EQ(RasterInfo("absurd"), std::make_pair(Unset(), 0));
}

TEST_F(PlacedSuiteTest, TheFilePathIsTheLinkedFileEvenWhenItIsMissing) {
    EXPECT_EQ(FileOf("photo"), ImageFile("rgb-640x480.png"));
    EXPECT_EQ(FileOf("missing"), ImageFile("gone.png"));
}

TEST_F(PlacedSuiteTest, AnEpsFileHasTheEpsTypeAndAnImageTheOther) {
    ZMPlacedType type = -1;
    EXPECT_EQ(placed->GetPlacedType(ArtNamed("eps"), &type), ZM_ERR_NONE);
    EXPECT_EQ(type, ZM_PLACED_TYPE_EPS);
    EXPECT_EQ(placed->GetPlacedType(ArtNamed("photo"), &type), ZM_ERR_NONE);
    EXPECT_EQ(type, ZM_PLACED_TYPE_OTHER);
}

TEST_F(PlacedSuiteTest, OtherArtIsOfTheWrongType) {
    ZMRasterRecord record = Unset();
    int32_t isRaster = 0;
    ZMPlacedType type = 0;
    // An embedded image is raster art, not placed art.
    EXPECT_EQ(placed->GetPlacedRasterInfo(ArtNamed("embedded"), &record, &isRaster),
              ZM_ERR_WRONG_ART_TYPE);
    EXPECT_EQ(placed->GetPlacedType(ArtNamed("box"), &type), ZM_ERR_WRONG_ART_TYPE);
    EXPECT_EQ(placed->GetPlacedFilePath(ArtNamed("box"), MadePath()), ZM_ERR_WRONG_ART_TYPE);
}

TEST_F(PlacedSuiteTest, BadArgumentsAndMissingDocumentsAreReported) {
    ZMArtHandle photo = ArtNamed("photo");
    ZMRasterRecord record = Unset();
    int32_t isRaster = 0;
    EXPECT_EQ(placed->GetPlacedRasterInfo(photo, nullptr, &isRaster), ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(placed->GetPlacedRasterInfo(photo, &record, nullptr), ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(placed->GetPlacedType(photo, nullptr), ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(placed->GetPlacedFilePath(photo, nullptr), ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(placed->GetPlacedFilePath(nullptr, MadePath()), ZM_ERR_BAD_ARGUMENT);
    runtime.documents.CloseCurrent();
    EXPECT_EQ(placed->GetPlacedRasterInfo(photo, &record, &isRaster), ZM_ERR_NO_DOCUMENT);
}

}  // namespace
}  // namespace zm::test
