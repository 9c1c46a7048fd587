#pragma once

#include "survey/PaintKind.hpp"

#include <zelmora/ZMArtStyleSuite.h>
#include <zelmora/ZMArtTypes.h>
#include <zelmora/ZMTypes.h>

#include <cstdint>

namespace tolvane {

// The art's style: a named graphic style is counted and listed, its fill and stroke paints
// are classified into marks (then counted once for the object), brushes on its strokes are
// looked for, and its blending counts as transparency (a group's under transparent groups,
// other art's under transparent objects). artType is the art's host type. 0, or the host's
// code of the failing query.
ZMErr CheckStyle(ZMArtHandle art, int16_t artType, PaintKind& marks, int32_t skipSolid);

// Counts the brushed strokes of the parsed style and, in the Brushes category or while
// saving, lists each brush as "Name (Type)".
ZMErr CheckForBrush(ZMStyleParser parser);

}  // namespace tolvane
