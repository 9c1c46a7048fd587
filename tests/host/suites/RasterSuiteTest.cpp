#include "ImageSuitesFixture.hpp"

#include <document/Art.hpp>

#include <zelmora/ZMColorSpaceSuite.h>
#include <zelmora/ZMRasterSuite.h>

#include <gtest/gtest.h>

#include <cstddef>

namespace zm::test {
namespace {

static_assert(offsetof(ZMRasterSuite, GetColorizedFlag) == 3 * sizeof(void*));
static_assert(offsetof(ZMRasterLink, linkState) == sizeof(void*));
static_assert(offsetof(ZMRasterLink, sourceKind) == sizeof(void*) + 4);

class RasterSuiteTest : public ImageSuitesFixture {
protected:
    void SetUp() override {
        ImageSuitesFixture::SetUp();
        Acquire(ZM_RASTER_SUITE_NAME, ZM_RASTER_SUITE_VERSION, raster);
        Acquire(ZM_COLOR_SPACE_SUITE_NAME, ZM_COLOR_SPACE_SUITE_VERSION, spaces);
    }

    // Turns the embedded image into one linking `file`, as raster art linking a file would be.
    ZMArtHandle LinkedRaster(const std::string& file) {
        ZMArtHandle handle = ArtNamed("embedded");
        auto& model = *reinterpret_cast<host::document::Art*>(handle);
        model.image->embedded = false;
        model.image->data.clear();
        model.image->file = ImageFile(file);
        model.image->fileExists = true;
        model.image->fileIsRaster = true;
        return handle;
    }

    int16_t Family(ZMColorSpaceHandle space) {
        int16_t family = -1;
        EXPECT_EQ(spaces->GetColorSpaceFamily(space, &family), ZM_ERR_NONE);
        return family;
    }

    const ZMRasterSuite* raster = nullptr;
    const ZMColorSpaceSuite* spaces = nullptr;
};

TEST_F(RasterSuiteTest, AnEmbeddedRgbaImageIsTransparentRgbOfThirtyTwoBits) {
    // The data: URI holds a 20 x 10 PNG of red, green, blue and alpha, 8 bits each.
    ZMRasterRecord record = Unset();
    EXPECT_EQ(raster->GetRasterInfo(ArtNamed("embedded"), &record), ZM_ERR_NONE);
    EXPECT_EQ(record, Record(20, 10, ZM_RASTER_RGB + ZM_RASTER_ALPHA, 32));
    EXPECT_EQ(record.colorSpace, 17);
}

TEST_F(RasterSuiteTest, AnEmbeddedImageReadsAsEmbedded) {
    ZMRasterLink link{MadePath(), -1, -1};
    EXPECT_EQ(raster->GetRasterLink(ArtNamed("embedded"), &link), ZM_ERR_NONE);
    EXPECT_EQ(link.linkState, ZM_RASTER_LINK_EMBEDDED);
    EXPECT_EQ(link.sourceKind, ZM_RASTER_SOURCE_DOCUMENT);
    EXPECT_TRUE(PathOf(link.file).empty());
}

TEST_F(RasterSuiteTest, ALinkedRasterReadsAsLinkedAndIsReadFromItsFile) {
    ZMArtHandle linked = LinkedRaster("bitmap-1000x1000.png");
    ZMRasterLink link{MadePath(), -1, -1};
    EXPECT_EQ(raster->GetRasterLink(linked, &link), ZM_ERR_NONE);
    // Linked: state 0 and a source kind other than 2.
    EXPECT_EQ(link.linkState, 0);
    EXPECT_NE(link.sourceKind, 2);
    EXPECT_EQ(PathOf(link.file), ImageFile("bitmap-1000x1000.png"));
    ZMRasterRecord record = Unset();
    EXPECT_EQ(raster->GetRasterInfo(linked, &record), ZM_ERR_NONE);
    EXPECT_EQ(record, Record(1000, 1000, ZM_RASTER_GRAY, 1));
}

TEST_F(RasterSuiteTest, AnRgbaImagesColourSpaceIsRgb) {
    ZMColorSpaceHandle space = nullptr;
    EXPECT_EQ(raster->GetRasterColorSpace(ArtNamed("embedded"), &space), ZM_ERR_NONE);
    EXPECT_EQ(Family(space), ZM_COLOR_SPACE_RGB);
    int32_t count = 0;
    EXPECT_EQ(spaces->CountColorants(space, &count), ZM_ERR_NONE);
    EXPECT_EQ(count, 3);  // red, green, blue: alpha is no ink
}

TEST_F(RasterSuiteTest, APaletteImagesColourSpaceIsIndexedOverRgb) {
    ZMColorSpaceHandle space = nullptr;
    EXPECT_EQ(raster->GetRasterColorSpace(LinkedRaster("palette-4x2.png"), &space), ZM_ERR_NONE);
    EXPECT_EQ(Family(space), ZM_COLOR_SPACE_INDEXED);
    ZMColorSpaceHandle base = nullptr;
    EXPECT_EQ(spaces->GetBaseColorSpace(space, &base), ZM_ERR_NONE);
    EXPECT_EQ(Family(base), ZM_COLOR_SPACE_RGB);
}

TEST_F(RasterSuiteTest, ACmykJpegsColourSpaceIsCmykAndTheSameSpaceEveryTime) {
    ZMArtHandle linked = LinkedRaster("cmyk-16x8.jpg");
    ZMColorSpaceHandle first = nullptr;
    ZMColorSpaceHandle second = nullptr;
    EXPECT_EQ(raster->GetRasterColorSpace(linked, &first), ZM_ERR_NONE);
    EXPECT_EQ(raster->GetRasterColorSpace(linked, &second), ZM_ERR_NONE);
    EXPECT_EQ(Family(first), ZM_COLOR_SPACE_CMYK);
    EXPECT_EQ(first, second);
}

// Three inks of 8 bits: DeviceN (5), 24 bits; its space one separation member an ink.
TEST_F(RasterSuiteTest, AnImageOfNamedInksIsDeviceNOfOneSeparationAnInk) {
    ZMArtHandle linked = LinkedRaster("inks-gray-orange-gray-4x2.tif");
    ZMRasterRecord record = Unset();
    EXPECT_EQ(raster->GetRasterInfo(linked, &record), ZM_ERR_NONE);
    EXPECT_EQ(record, Record(4, 2, ZM_RASTER_DEVICE_N, 24));
    ZMColorSpaceHandle space = nullptr;
    EXPECT_EQ(raster->GetRasterColorSpace(linked, &space), ZM_ERR_NONE);
    EXPECT_EQ(Family(space), ZM_COLOR_SPACE_DEVICE_N);
    int32_t members = 0;
    EXPECT_EQ(spaces->CountColorSpaceMembers(space, &members), ZM_ERR_NONE);
    ASSERT_EQ(members, 3);
    ZMColorSpaceHandle first = nullptr;
    EXPECT_EQ(spaces->GetNthColorSpaceMember(space, 0, &first), ZM_ERR_NONE);
    EXPECT_EQ(Family(first), ZM_COLOR_SPACE_SEPARATION);
}

// One ink: a separation (4) of 8 bits.
TEST_F(RasterSuiteTest, AnImageOfOneNamedInkIsASeparation) {
    ZMArtHandle linked = LinkedRaster("ink-orange-6x4.tif");
    ZMRasterRecord record = Unset();
    EXPECT_EQ(raster->GetRasterInfo(linked, &record), ZM_ERR_NONE);
    EXPECT_EQ(record, Record(6, 4, ZM_RASTER_SEPARATION, 8));
    ZMColorSpaceHandle space = nullptr;
    EXPECT_EQ(raster->GetRasterColorSpace(linked, &space), ZM_ERR_NONE);
    EXPECT_EQ(Family(space), ZM_COLOR_SPACE_SEPARATION);
}

TEST_F(RasterSuiteTest, NoImageIsColorized) {
    int32_t colorized = -1;
    EXPECT_EQ(raster->GetColorizedFlag(LinkedRaster("bitmap-1000x1000.png"), &colorized),
              ZM_ERR_NONE);
    EXPECT_EQ(colorized, 0);
}

TEST_F(RasterSuiteTest, DamagedOrAbsurdImagesAreBadRastersAndLeaveTheRecord) {
    ZMRasterRecord record = Unset();
    EXPECT_EQ(raster->GetRasterInfo(ArtNamed("broken"), &record), ZM_ERR_BAD_RASTER);
    EXPECT_EQ(record, Unset());
    ZMColorSpaceHandle space = nullptr;
    EXPECT_EQ(raster->GetRasterColorSpace(ArtNamed("broken"), &space), ZM_ERR_BAD_RASTER);
    EXPECT_EQ(raster->GetRasterInfo(LinkedRaster("absurd-width.png"), &record), ZM_ERR_BAD_RASTER);
    EXPECT_EQ(record, Unset());
}

TEST_F(RasterSuiteTest, PlacedArtIsOfTheWrongType) {
    ZMRasterRecord record = Unset();
    int32_t colorized = 0;
    EXPECT_EQ(raster->GetRasterInfo(ArtNamed("photo"), &record), ZM_ERR_WRONG_ART_TYPE);
    EXPECT_EQ(raster->GetColorizedFlag(ArtNamed("box"), &colorized), ZM_ERR_WRONG_ART_TYPE);
}

TEST_F(RasterSuiteTest, BadArgumentsAndMissingDocumentsAreReported) {
    ZMArtHandle embedded = ArtNamed("embedded");
    ZMRasterLink link{nullptr, 0, 0};
    EXPECT_EQ(raster->GetRasterInfo(embedded, nullptr), ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(raster->GetRasterColorSpace(embedded, nullptr), ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(raster->GetRasterLink(embedded, nullptr), ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(raster->GetRasterLink(embedded, &link), ZM_ERR_BAD_ARGUMENT);  // no path in it
    EXPECT_EQ(raster->GetColorizedFlag(embedded, nullptr), ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(raster->GetColorizedFlag(nullptr, nullptr), ZM_ERR_BAD_ARGUMENT);
    runtime.documents.CloseCurrent();
    ZMRasterRecord record = Unset();
    EXPECT_EQ(raster->GetRasterInfo(embedded, &record), ZM_ERR_NO_DOCUMENT);
}

}  // namespace
}  // namespace zm::test
