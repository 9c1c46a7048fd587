#pragma once

#include <zelmora/ZMArtTypes.h>
#include <zelmora/ZMTypes.h>

#include <cstdint>

namespace tolvane {

// Counts a foreign object, offers each font its content names to the font list and counts
// what its content says of itself: transparency, and the swatches it paints with, each raising
// the colour counters on its own. inMask is 1 inside an opacity mask. What the host cannot
// enumerate is skipped; the survey goes on, so the result is always 0.
ZMErr VisitForeignObject(ZMArtHandle art, int32_t inMask);

}  // namespace tolvane
