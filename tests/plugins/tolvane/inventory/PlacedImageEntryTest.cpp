#include "plugins/tolvane/inventory/ImageInventoryFixture.hpp"

#include <zelmora/ZMARMSuite.h>
#include <zelmora/ZMPlacedSuite.h>

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace {

using Texts = std::vector<std::string>;
using zm::test::ImagePath;

// Entries of the placed suite.
constexpr int32_t kGetPlacedFilePath = 0;
constexpr int32_t kGetPlacedType = 1;
// Entries of the asset suite.
constexpr int32_t kIsAvailable = 0;
constexpr int32_t kGetAssetUrl = 1;

class PlacedImageEntryTest : public zm::test::ImageInventoryFixture {
protected:
    void SetUp() override {
        ImageInventoryFixture::SetUp();
        OpenImages("linked.svg");
    }
};

// The empty entry parts it from what comes before; the EPS file has an asset address.
TEST_F(PlacedImageEntryTest, AnEpsFileIsItsPathItsTypeAndItsAddress) {
    ASSERT_EQ(AddPlaced("eps"), ZM_ERR_NONE);
    EXPECT_EQ(Linked(),
              (Texts{"", ImagePath("art.eps"), "Type: EPS", "URL: https://assets.example/art"}));
    EXPECT_EQ(Record().linkedImageCount, 1);
}

// The second placement finds the path listed and adds nothing, not even to the count.
TEST_F(PlacedImageEntryTest, TheSameFilePlacedTwiceIsDescribedOnce) {
    ASSERT_EQ(AddPlaced("eps"), ZM_ERR_NONE);
    ASSERT_EQ(AddPlaced("eps-again"), ZM_ERR_NONE);
    EXPECT_EQ(Linked(),
              (Texts{"", ImagePath("art.eps"), "Type: EPS", "URL: https://assets.example/art"}));
    EXPECT_EQ(CountedEntries(Lists().linkedImageList)[1], ImagePath("art.eps") + ":1");
    EXPECT_EQ(Record().linkedImageCount, 1);
}

// gone.png is no file at all: a placed file of another type than EPS, without an address.
TEST_F(PlacedImageEntryTest, AMissingFileIsOfTypeOther) {
    ASSERT_EQ(AddPlaced("missing"), ZM_ERR_NONE);
    EXPECT_EQ(Linked(), (Texts{"", ImagePath("gone.png"), "Type: Other"}));
}

// Files that are no image the host can describe: a PNG cut inside its header, and one of
// 100,000 x 100,000 pixels.
TEST_F(PlacedImageEntryTest, ImagesTheHostCannotDescribeAreFilesOfTypeOther) {
    ASSERT_EQ(AddPlaced("damaged"), ZM_ERR_NONE);
    ASSERT_EQ(AddPlaced("absurd"), ZM_ERR_NONE);
    EXPECT_EQ(Linked(), (Texts{"", ImagePath("truncated.png"), "Type: Other", "",
                               ImagePath("absurd-area.png"), "Type: Other"}));
    EXPECT_EQ(Record().linkedImageCount, 2);
}

// Appended, not sorted: gone.png stays before art.eps.
TEST_F(PlacedImageEntryTest, FilesKeepTheOrderTheyAreMetIn) {
    AddPlaced("missing");
    AddPlaced("eps");
    EXPECT_EQ(Linked(), (Texts{"", ImagePath("gone.png"), "Type: Other", "", ImagePath("art.eps"),
                               "Type: EPS", "URL: https://assets.example/art"}));
}

TEST_F(PlacedImageEntryTest, AnImageThatNamesNoFileIsAnUnknownImage) {
    ASSERT_EQ(AddPlaced("nameless"), ZM_ERR_NONE);
    EXPECT_EQ(Linked(), (Texts{"", "(Unknown image)", "Type: Other"}));
}

TEST_F(PlacedImageEntryTest, APathTheHostCannotGiveIsAnUnknownImage) {
    runtime.faults.FailCall(ZM_PLACED_SUITE_NAME, kGetPlacedFilePath, ZM_ERR_INTERNAL);
    ASSERT_EQ(AddPlaced("eps"), ZM_ERR_NONE);
    EXPECT_EQ(Linked(),
              (Texts{"", "(Unknown image)", "Type: EPS", "URL: https://assets.example/art"}));
}

// The path is listed and counted before the type is asked for.
TEST_F(PlacedImageEntryTest, AFailingTypeQueryEndsWithTheHostsCode) {
    runtime.faults.FailCall(ZM_PLACED_SUITE_NAME, kGetPlacedType, ZM_ERR_INTERNAL);
    EXPECT_EQ(AddPlaced("eps"), ZM_ERR_INTERNAL);
    EXPECT_EQ(Linked(), (Texts{"", ImagePath("art.eps")}));
    EXPECT_EQ(Record().linkedImageCount, 1);
}

// The asset suite is optional.
TEST_F(PlacedImageEntryTest, WithoutTheAssetSuiteNoUrlIsWritten) {
    runtime.suites.FailAcquisition(ZM_ARM_SUITE_NAME, ZM_ARM_SUITE_VERSION,
                                   ZM_ERR_SUITE_NOT_FOUND);
    ASSERT_EQ(AddPlaced("eps"), ZM_ERR_NONE);
    EXPECT_EQ(Linked(), (Texts{"", ImagePath("art.eps"), "Type: EPS"}));
}

TEST_F(PlacedImageEntryTest, AnAssetSuiteThatKeepsNoAddressesAddsNoUrl) {
    runtime.faults.FailCall(ZM_ARM_SUITE_NAME, kIsAvailable, ZM_ERR_INTERNAL);
    ASSERT_EQ(AddPlaced("eps"), ZM_ERR_NONE);
    EXPECT_EQ(Linked(), (Texts{"", ImagePath("art.eps"), "Type: EPS"}));
}

TEST_F(PlacedImageEntryTest, AnAddressTheAssetSuiteCannotGiveAddsNoUrl) {
    runtime.faults.FailCall(ZM_ARM_SUITE_NAME, kGetAssetUrl, ZM_ERR_INTERNAL);
    ASSERT_EQ(AddPlaced("eps"), ZM_ERR_NONE);
    EXPECT_EQ(Linked(), (Texts{"", ImagePath("art.eps"), "Type: EPS"}));
}

// The separator's node is the first allocation: nothing is listed, no alert is shown.
TEST_F(PlacedImageEntryTest, AListThatCannotTakeTheEntryGivesOutOfMemoryWithoutAnAlert) {
    runtime.faults.FailAllocation(1);
    EXPECT_EQ(AddPlaced("eps"), ZM_ERR_NO_MEMORY);
    EXPECT_TRUE(Linked().empty());
    EXPECT_EQ(Record().linkedImageCount, 0);
    EXPECT_TRUE(AlertTexts().empty());
}

// The path's node is the second allocation: the separator stays, the path is not counted.
TEST_F(PlacedImageEntryTest, APathTheListCannotTakeGivesOutOfMemory) {
    runtime.faults.FailAllocation(2);
    EXPECT_EQ(AddPlaced("eps"), ZM_ERR_NO_MEMORY);
    EXPECT_EQ(Linked(), (Texts{""}));
    EXPECT_EQ(Record().linkedImageCount, 0);
    EXPECT_TRUE(AlertTexts().empty());
}

}  // namespace
