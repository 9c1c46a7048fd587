#pragma once

#include <zelmora/ZMArtTypes.h>
#include <zelmora/ZMTypes.h>

#include <cstdint>

#include "survey/PaintKind.hpp"

namespace tolvane {

// Surveys a text frame through the text engine: counts it by kind, offers each of its fonts
// to the font list, classifies the paints of its text into paintKinds and counts them for
// the object, then surveys the frame's path like any art. inMask is 1 inside an opacity
// mask (solid text colours then mark nothing). 0, or the host's code of the failing step.
ZMErr VisitTextFrame(ZMArtHandle art, PaintKind& paintKinds, int32_t inMask);

// Counts the frame as point, area or path text (a kind without a counter counts nowhere).
ZMErr CountFrameKind(ZMArtHandle art);

// Offers each font of the frame's text, in the engine's order, to the font list.
ZMErr OfferFrameFonts(ZMArtHandle art);

}  // namespace tolvane
