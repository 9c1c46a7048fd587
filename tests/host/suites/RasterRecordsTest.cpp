#include <images/RasterHeader.hpp>
#include <suites/RasterRecords.hpp>

#include <gtest/gtest.h>

#include <string>
#include <utility>
#include <vector>

namespace zm::host {
namespace {

using images::PixelModel;

ZMRasterRecord RecordOf(PixelModel model, bool alpha, int32_t bits, bool indexed = false) {
    images::RasterHeader header;
    header.width = 7;
    header.height = 3;
    header.model = model;
    header.alpha = alpha;
    header.indexed = indexed;
    header.bitsPerPixel = bits;
    return ToRasterRecord(header);
}

TEST(RasterRecordsTest, TheBoundsRunFromTheOriginToTheSize) {
    ZMRasterRecord record = RecordOf(PixelModel::Rgb, false, 24);
    EXPECT_EQ(record.left, 0);
    EXPECT_EQ(record.top, 0);
    EXPECT_EQ(record.right, 7);   // width 7 = right - left
    EXPECT_EQ(record.bottom, 3);  // height 3 = bottom - top
    EXPECT_EQ(record.bitsPerPixel, 24);
}

TEST(RasterRecordsTest, EachModelHasItsCode) {
    EXPECT_EQ(RecordOf(PixelModel::Gray, false, 8).colorSpace, 0);
    EXPECT_EQ(RecordOf(PixelModel::Rgb, false, 24).colorSpace, 1);
    EXPECT_EQ(RecordOf(PixelModel::Cmyk, false, 32).colorSpace, 2);
    EXPECT_EQ(RecordOf(PixelModel::Lab, false, 24).colorSpace, 3);
}

TEST(RasterRecordsTest, AlphaAddsSixteen) {
    EXPECT_EQ(RecordOf(PixelModel::Gray, true, 16).colorSpace, 16);
    EXPECT_EQ(RecordOf(PixelModel::Rgb, true, 32).colorSpace, 17);
    EXPECT_EQ(RecordOf(PixelModel::Cmyk, true, 40).colorSpace, 18);
    EXPECT_EQ(RecordOf(PixelModel::Lab, true, 32).colorSpace, 19);
}

ZMRasterRecord InkRecordOf(std::vector<std::string> inks, bool alpha) {
    images::RasterHeader header;
    header.width = 7;
    header.height = 3;
    header.model = PixelModel::Inks;
    header.alpha = alpha;
    header.bitsPerPixel = static_cast<int32_t>(inks.size() + (alpha ? 1 : 0)) * 8;
    header.inks = std::move(inks);
    return ToRasterRecord(header);
}

// One ink is a separation (4), several DeviceN (5); alpha adds 16 as for the others.
TEST(RasterRecordsTest, NamedInksAreASeparationOrDeviceN) {
    EXPECT_EQ(InkRecordOf({"Orange"}, false).colorSpace, 4);
    EXPECT_EQ(InkRecordOf({"Gray", "Orange"}, false).colorSpace, 5);
    EXPECT_EQ(InkRecordOf({"Orange"}, true).colorSpace, 20);
    EXPECT_EQ(InkRecordOf({"Gray", "Orange", "Gray"}, true).colorSpace, 21);
}

TEST(RasterRecordsTest, AnIndexedImageHasItsPalettesCode) {
    EXPECT_EQ(RecordOf(PixelModel::Rgb, false, 8, true).colorSpace, 1);
}

}  // namespace
}  // namespace zm::host
