#pragma once

#include "survey/PaintKind.hpp"

#include <zelmora/ZMArtTypes.h>
#include <zelmora/ZMColorSpaceSuite.h>
#include <zelmora/ZMTypes.h>

#include <cstdint>

namespace tolvane {

// Marks in `marks` the colour models a paint uses and, in the categories that show them (or
// while saving), records the spot colour, pattern or gradient behind it in its list. With
// skipSolid non-zero (paint inside an opacity mask) gray, RGB, CMYK and swatch colours are
// ignored; patterns and gradients still count. 0, or the host's code of the failing query.
ZMErr AddCustomColor(const ZMColor& color, PaintKind& marks, int32_t skipSolid);

// Raises the survey's counter of each model marked in the low byte of marks, once each.
ZMErr AddMarksToCounters(PaintKind marks);

// Lists the swatch as "Name (CMYK)", "(RGB)" or "(Lab)" unless that text is listed already.
// code and label go to the out-of-memory alert only.
ZMErr AddSpotColorEntry(ZMCustomColorHandle color, ZMErr code, const char* label);

// Lists the pattern by name the first time it is met and surveys the text frames at the top
// of its definition.
ZMErr AddPattern(ZMPatternHandle pattern, PaintKind& marks, int32_t skipSolid);

// Lists the gradient as name, type and colour model; a new entry also lists its spot stops.
ZMErr AddGradient(ZMGradientHandle gradient);

// Lists the spot colours an image's colour space names.
ZMErr AddColorSpaceSpots(ZMColorSpaceHandle space);

// What a host iteration over colours (a mesh's, for one) hands to AddColorAndCount.
struct ColorTally {
    int32_t skipSolid;
    PaintKind marks;  // kept across the calls of one iteration
};

// A colour callback for host iterations: AddCustomColor into the tally's marks, then the
// counters for every mark set so far.
ZMErr ZM_API AddColorAndCount(void* tally, const ZMColor* color);

}  // namespace tolvane
