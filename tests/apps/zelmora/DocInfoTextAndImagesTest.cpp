#include "support/CommandRun.hpp"

#include <gtest/gtest.h>

#include <string>

namespace zm::test {
namespace {

constexpr int kExitDone = 0;

const std::string kTextAndImages = ZELMORA_TEST_FIXTURES "/svg/docinfo/text-and-images.svg";

// The fixture's Objects section, worked out from the document (one user unit is one point):
//
// Paths: none of the document's own; the two frame paths of the text frames are surveyed as
//   paths when their frames are: t-area's line box, 100 x 10, closed, 4 points, 220 pt, and
//   t-path's baseline, open, 2 points, 100 pt. 2 paths, 1 open, 1 closed, 6 points, 320 pt;
//   points and "rulerType" unset give three decimals.
// Type: three frames, one of each kind.
// Colour: every text frame's paint is counted by the style check of the frame, again after
//   the frame's runs are joined into its marks, and again by the style check of its frame
//   path, which shares those marks (a frame path's own paint adds nothing here: the line box
//   has none and the baseline is fill="none").
//   t-point: style RGB (red) -> RGB 1; runs red and CMYK -> RGB 2, CMYK 1; no path.
//   t-area: style gray -> gray 1; runs gray -> gray 2; its line box -> gray 3.
//   t-path: style black RGB (no fill given) -> RGB 3; runs black -> RGB 4; baseline -> RGB 5.
//   The images and the foreign object carry no paint of their own.
// Fonts: Liberation Sans regular (t-point's first run, t-area, the foreign object) and bold
//   (t-point's tspan), and Qwertyuiop Sans: 3. Images: photo is linked, seal embedded.
//   Non-native art: the foreignObject.
TEST(DocInfoTextAndImagesTest, TheObjectsSectionCountsTextFontsAndImages) {
    CommandResult run = RunCommand(ZELMORA_TEST_COMMAND,
                                   {"docinfo", "-q", "--category", "objects", kTextAndImages});
    EXPECT_EQ(run.exitStatus, kExitDone) << run.errors;
    EXPECT_EQ(run.errors, "");
    EXPECT_EQ(run.output,
              "Objects:\r\n\r\n"
              "Paths: 2 (1 open, 1 closed, 6 points, length = 320.000 pt)\r\n"
              "Compound Paths: NONE\r\n"
              "Gradient Meshes: NONE\r\n"
              "Symbol Instances: NONE\r\n\r\n"
              "All Type Objects: 3\r\n"
              "Point Type Objects: 1\r\n"
              "Area Type Objects: 1\r\n"
              "Type on Path Objects: 1\r\n\r\n"
              "Clipping Masks: NONE\r\n"
              "Opacity Masks: NONE\r\n"
              "Transparent Groups: NONE\r\n"
              "Transparent Objects: NONE\r\n"
              "RGB Objects: 5\r\n"
              "CMYK Objects: 1\r\n"
              "Grayscale Objects: 3\r\n\r\n"
              "Spot Color Objects: NONE\r\n"
              "Pattern Objects: NONE\r\n"
              "Gradient Objects: NONE\r\n"
              "Brushed Objects: NONE\r\n"
              "Styled Objects: NONE\r\n\r\n"
              "Fonts: 3\r\n"
              "Linked Images: 1\r\n"
              "Embedded Images: 1\r\n"
              "Non-Native Art Objects: 1\r\n");
}

}  // namespace
}  // namespace zm::test
