#pragma once

#include "survey/PaintKind.hpp"

#include <zelmora/ZMArtTypes.h>
#include <zelmora/ZMTypes.h>

#include <cstdint>

namespace tolvane {

// Counts the whole current document into gStatistics: its colour model, then every art object
// that is not a compound path's member, classified in document order. The panel's survey is
// neither read nor changed. A failing host call ends the count early; what was counted stays.
void SurveyForStatistics();

// Counts one art object into gStatistics (its opacity mask's art too). 0, or the code of the
// first failing step.
ZMErr ClassifyForStatistics(ZMArtHandle art, PaintKind& paintKinds, int32_t inMask);

}  // namespace tolvane
