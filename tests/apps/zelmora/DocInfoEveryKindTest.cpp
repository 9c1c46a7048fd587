#include "support/CommandRun.hpp"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace zm::test {
namespace {

constexpr int kExitDone = 0;

const std::string kEveryKind = ZELMORA_TEST_FIXTURES "/svg/docinfo/every-kind.svg";

CommandResult Category(const std::string& name) {
    return RunCommand(ZELMORA_TEST_COMMAND, {"docinfo", "-q", "--category", name, kEveryKind});
}

void ExpectShown(const std::string& category, const std::string& expected) {
    CommandResult run = Category(category);
    EXPECT_EQ(run.exitStatus, kExitDone) << run.errors;
    EXPECT_EQ(run.errors, "");
    EXPECT_EQ(run.output, expected);
}

// The fixture's Objects section, worked out from the document (lengths in points, one user
// unit being one point):
//
// Paths (what the matching returns of type path, plus the path inside the opacity mask;
// members of the compound path "holes" are not matched):
//   plain 100x50 closed, 4 points, 300          open-line 30-40-50, open, 2 points, 50
//   sky-box 40x40, 160                          dotted 40x40, 160
//   spot-box 20x20, 80                          ink-box 25x25, 100
//   the clip group's clipping path 30x30, 120   clipped 50x50, 200
//   masked 60x60, 240                           the mask's rect 60x60, 240
//   seven plug-in groups' rects 10x10, 7 x 40 = 280
//   framed-box 40x40, 160                       framed-box-2 40x40, 160
//   = 19 paths, 1 open, 18 closed, 18 x 4 + 2 = 74 points, 2250 pt in all; the ruler unit
//   is points and "rulerType" is unset (2), so three decimals: "2250.000 pt".
// Compound paths: holes. Meshes: meshed. Symbol instances: star-1, star-2.
// Optional kinds, one each: a blend, a compound shape, an envelope, a flare, a live paint
//   group, an image tracing group (known to the host's tracing suite), a chart, a graph. The
//   symbolism group counts nothing by itself, and no symbol set holds a raster.
// Type: none. Clipping masks: the clip group's path. Opacity masks: masked's.
// Transparent groups: faded (opacity 0.5). Transparent objects: dotted (opacity 0.5).
// RGB: plain, clipped, masked, framed-box and framed-box-2 (#1a1a1a strokes) = 5, and the
//   mesh: its colours are red, cyan (CMYK), green, blue, and after each colour every model
//   met so far counts again, so RGB 4 more (9) and CMYK 3 (after the 2nd, 3rd, 4th colour).
// CMYK: open-line's stroke, and the mesh's 3 = 4. The mask's CMYK rect counts for nothing.
// Grayscale: holes. Spot: spot-box (the spot stops of ink-box's gradient mark no object).
// Pattern: dotted. Gradient: sky-box, ink-box. Brushed: framed-box's stroke. Styled: the two
//   "frame" boxes. Fonts and images: none. Non-native art: the foreignObject.
TEST(DocInfoEveryKindTest, TheObjectsSectionCountsEveryKindOfArtAndPaint) {
    ExpectShown("objects",
                "Objects:\r\n\r\n"
                "Paths: 19 (1 open, 18 closed, 74 points, length = 2250.000 pt)\r\n"
                "Compound Paths: 1\r\n"
                "Gradient Meshes: 1\r\n"
                "Symbol Instances: 2\r\n\r\n"
                // Eight optional lines: the last of them is followed by a blank line.
                "Blends: 1\r\n"
                "Compound Shapes: 1\r\n"
                "Envelopes: 1\r\n"
                "Flares: 1\r\n"
                "Live Paint Groups: 1\r\n"
                "Image Tracing Objects: 1\r\n"
                "Charts: 1\r\n"
                "Graphs: 1\r\n\r\n"
                "All Type Objects: NONE\r\n"
                "Point Type Objects: NONE\r\n"
                "Area Type Objects: NONE\r\n"
                "Type on Path Objects: NONE\r\n\r\n"
                "Clipping Masks: 1\r\n"
                "Opacity Masks: 1\r\n"
                "Transparent Groups: 1\r\n"
                "Transparent Objects: 1\r\n"
                "RGB Objects: 9\r\n"
                "CMYK Objects: 4\r\n"
                "Grayscale Objects: 1\r\n\r\n"
                "Spot Color Objects: 1\r\n"
                "Pattern Objects: 1\r\n"
                "Gradient Objects: 2\r\n"
                "Brushed Objects: 1\r\n"
                "Styled Objects: 2\r\n\r\n"
                "Fonts: NONE\r\n"
                "Linked Images: NONE\r\n"
                "Embedded Images: NONE\r\n"
                "Non-Native Art Objects: 1\r\n");
}

// Both boxes carry the class "frame", one of them with a brush: one style, two objects.
TEST(DocInfoEveryKindTest, GraphicStylesCountTheObjectsOfEachStyle) {
    ExpectShown("graphic-styles", "Graphic Styles:\r\n\r\nframe: 2\r\n");
}

// The brush's name, then its type title without its "&".
TEST(DocInfoEveryKindTest, BrushesListTheBrushWithItsType) {
    ExpectShown("brushes", "Brushes:\r\n\r\nCharcoal - Feather (Art Brush)");
}

// Warm Red paints spot-box; Deep Blue only stands in ink-box's gradient, whose spot stops are
// listed too. Both are CMYK swatches; the list is sorted.
TEST(DocInfoEveryKindTest, SpotColorsComeFromObjectsAndFromGradientStops) {
    ExpectShown("spot-colors", "Spot Color Objects:\r\n\r\nDeep Blue (CMYK)\r\nWarm Red (CMYK)");
}

TEST(DocInfoEveryKindTest, PatternsAreListedByName) {
    ExpectShown("patterns", "Pattern Objects:\r\n\r\nDots");
}

// Ink fade: radial, both stops spot CMYK swatches, so CMYK. Sky: linear, two RGB stops.
TEST(DocInfoEveryKindTest, GradientsShowTheirTypeAndColorModel) {
    ExpectShown("gradients",
                "Gradient Objects:\r\n\r\nInk fade (radial) (CMYK)\r\nSky (linear) (RGB)");
}

}  // namespace
}  // namespace zm::test
