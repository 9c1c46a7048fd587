#pragma once

#include "report/ReportText.hpp"

#include <zelmora/ZMTypes.h>

namespace tolvane {

// The whole report as Save writes it: the dated heading, then every section in its fixed
// order, each after the separator line, from the survey as it stands. Appends to both
// texts. 0; the first failing section's code (what came before stays); 1 when the heading
// could not be made.
ZMErr AssembleReport(ReportText& text);

}  // namespace tolvane
