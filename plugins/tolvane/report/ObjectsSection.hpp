#pragma once

#include "report/ReportText.hpp"

#include <zelmora/ZMTypes.h>

namespace tolvane {

// The "Objects:" section from the survey's counters. 0, or the host's code of the step that
// failed (the lines written before it stay).
ZMErr WriteObjectsSection(ReportText& text);

}  // namespace tolvane
