#include "plugins/tolvane/inventory/ImageInventoryFixture.hpp"

#include <panel/PanelCategories.hpp>

#include <zelmora/ZMARMSuite.h>
#include <zelmora/ZMArtSuite.h>
#include <zelmora/ZMColorSpaceSuite.h>
#include <zelmora/ZMRasterSuite.h>

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace {

using Texts = std::vector<std::string>;
using namespace zm::test;

// Entries of the art, raster and colour space suites.
constexpr int32_t kGetArtBounds = 7;
constexpr int32_t kGetRasterLink = 2;
constexpr int32_t kGetColorizedFlag = 3;
constexpr int32_t kGetColorSpaceFamily = 0;
constexpr int32_t kGetColorantName = 2;

// --- Placed files that are images (linked.svg) -----------------------------------------------

class LinkedRasterTest : public ImageInventoryFixture {
protected:
    void SetUp() override {
        ImageInventoryFixture::SetUp();
        OpenImages("linked.svg");
    }
};

TEST_F(LinkedRasterTest, AnRgbImageOf640By480PixelsIs900K) {
    ASSERT_EQ(AddLinkedRaster("photo"), ZM_ERR_NONE);
    EXPECT_EQ(Linked(), (Texts{PhotoBlock()}));
    EXPECT_EQ(Record().linkedImageCount, 1);
    EXPECT_EQ(Record().embeddedImageCount, 0);
}

TEST_F(LinkedRasterTest, AOneBitBitmapIsOneChannelAndAnEighthOfItsPixelsInKilobytes) {
    ASSERT_EQ(AddLinkedRaster("bitmap"), ZM_ERR_NONE);
    EXPECT_EQ(Linked(), (Texts{BitmapBlock()}));
}

TEST_F(LinkedRasterTest, SixteenBitsAChannelCountAsSixChannels) {
    ASSERT_EQ(AddLinkedRaster("deep"), ZM_ERR_NONE);
    EXPECT_EQ(Linked(), (Texts{DeepBlock()}));
}

TEST_F(LinkedRasterTest, OneHundredPixelsOverSeventyTwoPointsAreOneHundredPixelsPerInch) {
    ASSERT_EQ(AddLinkedRaster("square"), ZM_ERR_NONE);
    EXPECT_EQ(Linked(), (Texts{SquareBlock()}));
}

TEST_F(LinkedRasterTest, ACmykJpegIsCmykOfFourChannels) {
    ASSERT_EQ(AddLinkedRaster("cmyk"), ZM_ERR_NONE);
    EXPECT_EQ(Linked(), (Texts{CmykBlock()}));
}

TEST_F(LinkedRasterTest, APlacedImageOfOneInkIsAMixedInkImageWithoutColourSpaceLines) {
    ASSERT_EQ(AddLinkedRaster("ink"), ZM_ERR_NONE);
    EXPECT_EQ(Linked(), (Texts{PlacedInkBlock()}));
}

// photo-again is the same file at the same size with the same address: the same block.
TEST_F(LinkedRasterTest, TheSameFilePlacedAlikeIsDescribedOnce) {
    AddLinkedRaster("photo");
    AddLinkedRaster("photo-again");
    EXPECT_EQ(CountedEntries(Lists().linkedImageList), (Texts{PhotoBlock() + ":1"}));
    EXPECT_EQ(Record().linkedImageCount, 1);
}

// At half the size the dimensions differ; "240.000" sorts before "480.000".
TEST_F(LinkedRasterTest, TheSameFileAtAnotherSizeIsAnotherDescription) {
    AddLinkedRaster("photo");
    AddLinkedRaster("photo-small");
    EXPECT_EQ(Linked(), (Texts{SmallPhotoBlock(), PhotoBlock()}));
    EXPECT_EQ(Record().linkedImageCount, 2);
}

// The blocks sort by their whole text, which begins with the path: bitmap-, gray-, rgb-.
TEST_F(LinkedRasterTest, BlocksAreListedInTheOrderOfTheirText) {
    AddLinkedRaster("photo");
    AddLinkedRaster("square");
    AddLinkedRaster("bitmap");
    EXPECT_EQ(Linked(), (Texts{BitmapBlock(), SquareBlock(), PhotoBlock()}));
}

// A block goes in front of the first entry it sorts before. The EPS file's separator ("")
// and path (".../art.eps" against ".../rgb16-...") sort before it, its "Type: EPS" after
// ("/" sorts before "T"), so the block lands between the EPS file's path and its type.
TEST_F(LinkedRasterTest, ABlockIsInsertedAmongPlacedFilesByItsText) {
    AddPlaced("eps");
    AddLinkedRaster("deep");
    EXPECT_EQ(Linked(), (Texts{"", ImagePath("art.eps"), DeepBlock(), "Type: EPS",
                               "URL: https://assets.example/art"}));
    EXPECT_EQ(Record().linkedImageCount, 2);
}

// The asset suite is optional: the block then ends with the resolution's line.
TEST_F(LinkedRasterTest, WithoutTheAssetSuiteTheBlockHasNoUrl) {
    runtime.suites.FailAcquisition(ZM_ARM_SUITE_NAME, ZM_ARM_SUITE_VERSION, ZM_ERR_SUITE_NOT_FOUND);
    ASSERT_EQ(AddLinkedRaster("photo"), ZM_ERR_NONE);
    std::string withoutUrl = PhotoBlock();
    withoutUrl.erase(withoutUrl.find("URL: "));
    EXPECT_EQ(Linked(), (Texts{withoutUrl}));
}

// Placed art has no raster colour space: the spot step ends at its query, having added
// nothing, and the block stays.
TEST_F(LinkedRasterTest, WhileSavingAPlacedImageAddsNoSpotColours) {
    globals.saving = 1;
    ASSERT_EQ(AddLinkedRaster("photo"), ZM_ERR_NONE);
    EXPECT_EQ(Linked(), (Texts{PhotoBlock()}));
    EXPECT_TRUE(Entries(Lists().spotColorList).empty());
}

TEST_F(LinkedRasterTest, AFailingBoundsQueryRecordsNothing) {
    runtime.faults.FailCall(ZM_ART_SUITE_NAME, kGetArtBounds, ZM_ERR_INTERNAL);
    EXPECT_EQ(AddLinkedRaster("photo"), ZM_ERR_NONE);
    EXPECT_TRUE(Linked().empty());
    EXPECT_EQ(Record().linkedImageCount, 0);
}

// The list's node is the one allocation: the alert names the place, with id -1.
TEST_F(LinkedRasterTest, ABlockTheListCannotTakeShowsTheAlertAndGivesOutOfMemory) {
    runtime.faults.FailAllocation(1);
    EXPECT_EQ(AddLinkedRaster("photo"), ZM_ERR_NO_MEMORY);
    EXPECT_TRUE(Linked().empty());
    EXPECT_EQ(Record().linkedImageCount, 0);
    EXPECT_EQ(AlertTexts(), (Texts{OutOfMemoryAlert("ID =   AddRasterArt:LinkStrAdd")}));
}

// --- Raster art (embedded.svg) ----------------------------------------------------------------

class EmbeddedRasterTest : public ImageInventoryFixture {
protected:
    void SetUp() override {
        ImageInventoryFixture::SetUp();
        OpenImages("embedded.svg");
    }
};

TEST_F(EmbeddedRasterTest, AnImageWithAlphaIsTransparentRgbOfFourChannels) {
    ASSERT_EQ(AddRaster("alpha"), ZM_ERR_NONE);
    EXPECT_EQ(Embedded(), (Texts{AlphaBlock()}));
    EXPECT_EQ(Record().embeddedImageCount, 1);
    EXPECT_EQ(Record().linkedImageCount, 0);
    EXPECT_TRUE(Linked().empty());
}

TEST_F(EmbeddedRasterTest, APaletteImageNamesItsIndexedSpaceItsBaseAndTheBasesInks) {
    ASSERT_EQ(AddRaster("palette"), ZM_ERR_NONE);
    EXPECT_EQ(Embedded(), (Texts{PaletteBlock()}));
}

TEST_F(EmbeddedRasterTest, ADeviceNImageShowsAFirstGrayInkAsGrayscaleAndALaterOneAsGray) {
    ASSERT_EQ(AddRaster("devicen"), ZM_ERR_NONE);
    EXPECT_EQ(Embedded(), (Texts{DeviceNBlock()}));
}

TEST_F(EmbeddedRasterTest, AnImageOfOneInkIsASingleInkSeparation) {
    ASSERT_EQ(AddRaster("separation"), ZM_ERR_NONE);
    EXPECT_EQ(Embedded(), (Texts{SeparationBlock()}));
}

// Equal blocks: the second goes in front of the first, both stay; one node each.
TEST_F(EmbeddedRasterTest, TheSameImageTwiceGivesTwoBlocks) {
    AddRaster("twin");
    AddRaster("twin-again");
    EXPECT_EQ(CountedEntries(Lists().embeddedImageList),
              (Texts{TwinBlock() + ":1", TwinBlock() + ":1"}));
    EXPECT_EQ(Record().embeddedImageCount, 2);
}

TEST_F(EmbeddedRasterTest, AnImageOfNoHeightHasNoVerticalResolution) {
    ASSERT_EQ(AddRaster("flat"), ZM_ERR_NONE);
    EXPECT_EQ(Embedded(), (Texts{FlatBlock()}));
}

// Sorted by their text: "Type: G" < "Type: M" < "Type: R" < "Type: S" < "Type: T"; of the two
// grayscale blocks "Dimensions: 18" sorts before "Dimensions: 9".
TEST_F(EmbeddedRasterTest, BlocksAreListedInTheOrderOfTheirText) {
    for (const char* id : {"alpha", "separation", "twin", "palette", "devicen", "flat"}) {
        ASSERT_EQ(AddRaster(id), ZM_ERR_NONE) << id;
    }
    EXPECT_EQ(Embedded(), (Texts{FlatBlock(), TwinBlock(), DeviceNBlock(), PaletteBlock(),
                                 SeparationBlock(), AlphaBlock()}));
    EXPECT_EQ(Record().embeddedImageCount, 6);
}

// Its grandparent is the symbolism group: a symbol set's instance.
TEST_F(EmbeddedRasterTest, AnImageInASymbolSetIsCountedAsTheSetsAndNotDescribed) {
    ASSERT_EQ(AddRaster("sprayed-image"), ZM_ERR_NONE);
    EXPECT_EQ(Record().symbolSetCount, 1);
    EXPECT_TRUE(Embedded().empty());
    EXPECT_EQ(Record().embeddedImageCount, 0);
}

TEST_F(EmbeddedRasterTest, AnImageTheHostCannotReadIsLeftOutWithoutAnError) {
    EXPECT_EQ(AddRaster("broken"), ZM_ERR_NONE);
    EXPECT_TRUE(Embedded().empty());
    EXPECT_EQ(Record().embeddedImageCount, 0);
}

// Each failing query on the way ends the description unrecorded and unreported.
TEST_F(EmbeddedRasterTest, AnyFailingQueryRecordsNothing) {
    struct Failure {
        const char* suite;
        int32_t entry;
    };
    for (Failure failure : {Failure{ZM_RASTER_SUITE_NAME, kGetRasterLink},
                            Failure{ZM_RASTER_SUITE_NAME, kGetColorizedFlag},
                            Failure{ZM_COLOR_SPACE_SUITE_NAME, kGetColorSpaceFamily},
                            Failure{ZM_COLOR_SPACE_SUITE_NAME, kGetColorantName},
                            Failure{ZM_ART_SUITE_NAME, kGetArtBounds}}) {
        SCOPED_TRACE(std::string(failure.suite) + " " + std::to_string(failure.entry));
        runtime.faults.FailCall(failure.suite, failure.entry, ZM_ERR_INTERNAL);
        EXPECT_EQ(AddRaster("palette"), ZM_ERR_NONE);
        runtime.faults.Clear();
    }
    EXPECT_TRUE(Embedded().empty());
    EXPECT_EQ(Record().embeddedImageCount, 0);
}

TEST_F(EmbeddedRasterTest, ABlockTheListCannotTakeShowsTheAlertAndGivesOutOfMemory) {
    runtime.faults.FailAllocation(1);
    EXPECT_EQ(AddRaster("alpha"), ZM_ERR_NO_MEMORY);
    EXPECT_TRUE(Embedded().empty());
    EXPECT_EQ(Record().embeddedImageCount, 0);
    EXPECT_EQ(AlertTexts(), (Texts{OutOfMemoryAlert("ID =   AddRasterArt:LinkStrAdd")}));
}

// In the spot colour category the separation's ink, Orange, is the document's spot swatch.
TEST_F(EmbeddedRasterTest, InTheSpotColourCategoryAnImagesSpotInksAreListed) {
    globals.mode = tolvane::kModeSpotColors;
    ASSERT_EQ(AddRaster("separation"), ZM_ERR_NONE);
    EXPECT_EQ(Entries(Lists().spotColorList), (Texts{"Orange (CMYK)"}));
    EXPECT_EQ(Embedded(), (Texts{SeparationBlock()}));  // described all the same
}

TEST_F(EmbeddedRasterTest, OutsideTheSpotColourCategoryAnImagesInksAreNotListed) {
    ASSERT_EQ(AddRaster("separation"), ZM_ERR_NONE);
    EXPECT_TRUE(Entries(Lists().spotColorList).empty());
}

// The DeviceN space's first member, Gray, names no swatch: the members' walk ends there, so
// Orange behind it is not reached, and that failure is no error of the image's.
TEST_F(EmbeddedRasterTest, AnInkNoSwatchIsNamedAfterIsNoError) {
    globals.saving = 1;
    EXPECT_EQ(AddRaster("devicen"), ZM_ERR_NONE);
    EXPECT_TRUE(Entries(Lists().spotColorList).empty());
    EXPECT_EQ(Embedded(), (Texts{DeviceNBlock()}));
}

// The block's node is the first allocation, the spot entry's the second: its alert is the
// swatch place's, and the want of memory is the image's result.
TEST_F(EmbeddedRasterTest, ASpotTheListCannotTakeGivesOutOfMemory) {
    globals.mode = tolvane::kModeSpotColors;
    runtime.faults.FailAllocation(2);
    EXPECT_EQ(AddRaster("separation"), ZM_ERR_NO_MEMORY);
    EXPECT_EQ(Embedded(), (Texts{SeparationBlock()}));
    EXPECT_EQ(AlertTexts(), (Texts{OutOfMemoryAlert("ID =   AddCustomColor:LinkStrAdd")}));
}

}  // namespace
