#include "plugins/tolvane/survey/SurveyWalkFixture.hpp"

#include <zelmora/ZMPlacedSuite.h>

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace {

using tolvane::SurveyRecord;

constexpr int32_t kGetPlacedRasterInfo = 2;

// The walk over tests/fixtures/svg/images: linked.svg holds placed art only, embedded.svg
// raster art only (see the comments in each).
class ImageWalkTest : public zm::test::SurveyWalkFixture {
protected:
    void OpenImages(const std::string& name) { OpenFixture("images", name); }
};

// Placed art is examined in Objects, Linked Images and Embedded Images and while saving;
// raster art in those and Spot Color Objects too.
struct ImageCounts {
    int16_t mode;
    int32_t saving;
    bool placedExamined;
    bool rastersExamined;
};

const ImageCounts kImageCounts[] = {
    {2, 0, false, false},   // Document
    {3, 0, true, true},     // Objects
    {4, 0, false, false},   // Graphic Styles
    {5, 0, false, false},   // Brushes
    {6, 0, false, true},    // Spot Color Objects: rasters, for their inks
    {7, 0, false, false},   // Pattern Objects
    {8, 0, false, false},   // Gradient Objects
    {9, 0, false, false},   // Fonts: images are not even matched
    {10, 0, true, true},    // Linked Images
    {11, 0, true, true},    // Embedded Images
    {12, 0, false, false},  // Font Details
    {2, 1, true, true},     // saving from Document
};

// linked.svg: the seven distinct image descriptions (photo and photo-again are alike; the
// small photo differs in size) of photo, photo-small, square, bitmap, deep, cmyk and ink, and
// five other files (the EPS file placed twice, a missing one, a damaged one, an absurd one and
// one without a name): 12.
TEST_F(ImageWalkTest, PlacedArtIsExaminedInItsOwnCategories) {
    OpenImages("linked.svg");
    for (const ImageCounts& expected : kImageCounts) {
        SCOPED_TRACE("mode " + std::to_string(expected.mode) + " saving " +
                     std::to_string(expected.saving));
        globals.saving = expected.saving;
        const SurveyRecord& record = Survey(expected.mode);
        EXPECT_EQ(record.linkedImageCount, expected.placedExamined ? 12 : 0);
        EXPECT_EQ(record.embeddedImageCount, 0);
    }
}

// embedded.svg: alpha, palette, devicen, separation, twin, twin-again and flat are described
// (7); broken cannot be read; sprayed-image is a symbol set's instance.
TEST_F(ImageWalkTest, RasterArtIsExaminedInItsOwnCategories) {
    OpenImages("embedded.svg");
    for (const ImageCounts& expected : kImageCounts) {
        SCOPED_TRACE("mode " + std::to_string(expected.mode) + " saving " +
                     std::to_string(expected.saving));
        globals.saving = expected.saving;
        const SurveyRecord& record = Survey(expected.mode);
        EXPECT_EQ(record.embeddedImageCount, expected.rastersExamined ? 7 : 0);
        EXPECT_EQ(record.symbolSetCount, expected.rastersExamined ? 1 : 0);
        EXPECT_EQ(record.linkedImageCount, 0);
    }
}

// The first of the 14 matches is placed art; its failing query ends the survey there, before
// the progress would move on to match 4.
TEST_F(ImageWalkTest, AFailingPlacedQueryEndsTheSurvey) {
    OpenImages("linked.svg");
    runtime.faults.FailCall(ZM_PLACED_SUITE_NAME, kGetPlacedRasterInfo, ZM_ERR_INTERNAL);
    EXPECT_EQ(Survey(10).linkedImageCount, 0);
    EXPECT_EQ(progress.calls,
              (std::vector<std::string>{"begin Document &Info...", "update 0/14", "end"}));
}

}  // namespace
