#include "plugins/tolvane/inventory/ImageBlocks.hpp"
#include "support/CommandRun.hpp"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace zm::test {
namespace {

constexpr int kExitDone = 0;

const std::string kLinked = ZELMORA_TEST_FIXTURES "/svg/images/linked.svg";
const std::string kEmbedded = ZELMORA_TEST_FIXTURES "/svg/images/embedded.svg";

// The panel's text for one category of a document, checked to have run cleanly.
std::string Shown(const std::string& category, const std::string& file) {
    CommandResult run =
        RunCommand(ZELMORA_TEST_COMMAND, {"docinfo", "-q", "--category", category, file});
    EXPECT_EQ(run.exitStatus, kExitDone) << run.errors;
    EXPECT_EQ(run.errors, "");
    return run.output;
}

// The entries of a list section as the panel shows them: the title, a blank line, then the
// entries joined by line ends, the last without one of its own.
std::string ListSection(const std::string& title, const std::vector<std::string>& entries) {
    std::string text = title + "\r\n\r\n";
    for (std::size_t i = 0; i < entries.size(); ++i) {
        text += (i == 0 ? "" : "\r\n") + entries[i];
    }
    return text;
}

// The seven image files in the order of their whole text, which begins with the path:
// bitmap-, cmyk-, gray-, ink-, then rgb-640x480.png twice (its smaller placement first,
// "240.000" before "480.000"; photo-again is photo's double and adds nothing) and rgb16- ("-"
// sorts before "1"). Then the other files, appended in document order behind an empty entry
// each: the EPS file once (with the first placement's address), the missing, damaged and
// absurd files, and the image without a file. Each raster block ends in its own line end, so
// a blank line follows it on screen.
TEST(DocInfoImagesTest, LinkedImagesShowEachImageFileSortedThenEachOtherFile) {
    std::vector<std::string> entries = {BitmapBlock(),    CmykBlock(),       SquareBlock(),
                                        PlacedInkBlock(), SmallPhotoBlock(), PhotoBlock(),
                                        DeepBlock()};
    // A file the host does not read as an image: an empty entry, its path and its type.
    auto otherFile = [&](const std::string& path, const std::string& type) {
        entries.insert(entries.end(), {"", path, "Type: " + type});
    };
    otherFile(ImagePath("art.eps"), "EPS");
    entries.push_back("URL: https://assets.example/art");
    otherFile(ImagePath("gone.png"), "Other");
    otherFile(ImagePath("truncated.png"), "Other");
    otherFile(ImagePath("absurd-area.png"), "Other");
    otherFile("(Unknown image)", "Other");
    EXPECT_EQ(Shown("linked-images", kLinked), ListSection("Linked Images:", entries));
}

TEST(DocInfoImagesTest, ADocumentOfPlacedFilesHasNoEmbeddedImages) {
    EXPECT_EQ(Shown("embedded-images", kLinked), "Embedded Images:\r\n\r\nNONE\r\n");
}

// Sorted by their text: the two grayscale blocks of flat (18 points wide) and the twins
// ("Dimensions: 1" before "Dimensions: 9"), the second twin kept beside the first; then
// "Mixed", "RGB", "Single", "Transparent". broken cannot be read, sprayed-image is a symbol
// set's instance: neither is shown.
TEST(DocInfoImagesTest, EmbeddedImagesShowEveryImageSortedEvenTwice) {
    EXPECT_EQ(
        Shown("embedded-images", kEmbedded),
        ListSection("Embedded Images:", {FlatBlock(), TwinBlock(), TwinBlock(), DeviceNBlock(),
                                         PaletteBlock(), SeparationBlock(), AlphaBlock()}));
}

TEST(DocInfoImagesTest, ADocumentOfEmbeddedImagesHasNoLinkedImages) {
    EXPECT_EQ(Shown("linked-images", kEmbedded), "Linked Images:\r\n\r\nNONE\r\n");
}

// The separation's ink Orange is the document's spot swatch (CMYK). The DeviceN image's
// first ink, Gray, names no swatch, which ends the look at its inks.
TEST(DocInfoImagesTest, TheSpotInksOfImagesAreSpotColours) {
    EXPECT_EQ(Shown("spot-colors", kEmbedded), "Spot Color Objects:\r\n\r\nOrange (CMYK)");
}

// The seven distinct image descriptions and five other files of linked.svg count as linked
// images (12); nothing there is embedded.
TEST(DocInfoImagesTest, TheObjectsSectionCountsTheLinkedImagesDescribed) {
    EXPECT_NE(Shown("objects", kLinked)
                  .find("Fonts: NONE\r\n"
                        "Linked Images: 12\r\n"
                        "Embedded Images: NONE\r\n"),
              std::string::npos);
}

// Seven embedded images described (the unreadable one and the symbol set's are not).
TEST(DocInfoImagesTest, TheObjectsSectionCountsTheEmbeddedImagesDescribed) {
    EXPECT_NE(Shown("objects", kEmbedded)
                  .find("Fonts: NONE\r\n"
                        "Linked Images: NONE\r\n"
                        "Embedded Images: 7\r\n"),
              std::string::npos);
}

// The saved report's text of one list section: what follows its title line up to the
// separator of the next section.
std::string SavedSection(const std::string& report, const std::string& title) {
    const std::string separator = "\r\n" + std::string(77, '-') + "\r\n";
    const std::string opening = separator + "\r\n" + title + "\r\n";
    std::size_t start = report.find(opening);
    if (start == std::string::npos) {
        ADD_FAILURE() << "no section " << title;
        return {};
    }
    start += opening.size();
    return report.substr(start, report.find(separator, start) - start);
}

// In the saved text every entry but the last is followed by an empty line: its own line end,
// then the one each line gets. A block ends in a line end of its own besides; the last block,
// alpha's, ends with its address instead.
TEST(DocInfoImagesTest, TheSavedReportHoldsEveryEmbeddedImage) {
    CommandResult run = RunCommand(ZELMORA_TEST_COMMAND, {"docinfo", "-q", kEmbedded});
    ASSERT_EQ(run.exitStatus, kExitDone) << run.errors;
    EXPECT_EQ(SavedSection(run.output, "Embedded Images:"),
              FlatBlock() + "\r\n\r\n" + TwinBlock() + "\r\n\r\n" + TwinBlock() + "\r\n\r\n" +
                  DeviceNBlock() + "\r\n\r\n" + PaletteBlock() + "\r\n\r\n" + SeparationBlock() +
                  "\r\n\r\n" + AlphaBlock() + "\r\n");
    // Saving surveys the spot inks of images too.
    EXPECT_EQ(SavedSection(run.output, "Spot Color Objects:"), "Orange (CMYK)\r\n");
}

}  // namespace
}  // namespace zm::test
