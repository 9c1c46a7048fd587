#pragma once

#include "survey/PaintKind.hpp"

#include <zelmora/ZMArtTypes.h>
#include <zelmora/ZMTypes.h>

#include <cstdint>

namespace tolvane {

// Fills the survey from the current document's art: everything, or the selection, as the
// globals say; only what the current category needs unless the report is being saved.
// Always 0: a failing host call only cuts the survey short.
ZMErr RunSurvey();

// Surveys one art object. paintKinds is the caller's accumulator for the top-level match;
// inMask is 1 inside an opacity mask. 0, or the code of the first failing step.
ZMErr VisitArt(ZMArtHandle art, PaintKind& paintKinds, int32_t inMask);

// Counts a path, its anchor points, whether it is open, its length and whether it clips.
ZMErr VisitPath(ZMArtHandle art);

// How one art object is surveyed; VisitArt for the panel's survey.
using ArtVisitor = ZMErr (*)(ZMArtHandle art, PaintKind& paintKinds, int32_t inMask);

// Counts the art's opacity mask and surveys what the mask is made of, each object of it
// through visit with inMask 1.
ZMErr VisitMaskedArt(ZMArtHandle art, PaintKind& paintKinds, ArtVisitor visit = VisitArt);

}  // namespace tolvane
