#pragma once

#include "plugins/tolvane/report/ExpectedLines.hpp"

#include <vector>

namespace zm::test {

// The Document section of a new untitled document in points: RGB, no profile, US Letter,
// images not shown in outline mode, no highlighting, an empty dictionary (editability
// assumed, no paper simulation).
inline std::vector<Line> NewDocumentSectionInPoints() {
    return {{"Document:", 2},
            {"Color Mode: RGB color", 1},
            {"Color Profile: none", 1},
            {"Ruler Units: Points", 1},
            {"Artboard Dimensions: 612 pt x 792 pt", 1},
            {"Show Images in Outline Mode: OFF", 1},
            {"Highlight Substituted Fonts: OFF", 1},
            {"Highlight Substituted Glyphs: OFF", 1},
            {"Preserve Text Editability", 1},
            {"Simulate Colored Paper: OFF", 1}};
}

// The Objects section when nothing is counted: every fixed line shows NONE, the paths line
// too, no optional line; the blank lines on screen fall after the last line of each fixed
// group.
inline std::vector<Line> EmptyObjectsSection() {
    return {{"Objects:", 2},
            {"Paths: NONE", 1},
            {"Compound Paths: NONE", 1},
            {"Gradient Meshes: NONE", 1},
            {"Symbol Instances: NONE", 2},
            {"All Type Objects: NONE", 1},
            {"Point Type Objects: NONE", 1},
            {"Area Type Objects: NONE", 1},
            {"Type on Path Objects: NONE", 2},
            {"Clipping Masks: NONE", 1},
            {"Opacity Masks: NONE", 1},
            {"Transparent Groups: NONE", 1},
            {"Transparent Objects: NONE", 1},
            {"RGB Objects: NONE", 1},
            {"CMYK Objects: NONE", 1},
            {"Grayscale Objects: NONE", 2},
            {"Spot Color Objects: NONE", 1},
            {"Pattern Objects: NONE", 1},
            {"Gradient Objects: NONE", 1},
            {"Brushed Objects: NONE", 1},
            {"Styled Objects: NONE", 2},
            {"Fonts: NONE", 1},
            {"Linked Images: NONE", 1},
            {"Embedded Images: NONE", 1},
            {"Non-Native Art Objects: NONE", 1}};
}

}  // namespace zm::test
