#pragma once

#include "report/ReportText.hpp"
#include "report/StringGroups.hpp"
#include "survey/SurveyStringList.hpp"

#include <zelmora/ZMTypes.h>

#include <cstdint>

namespace tolvane {

// The title, then the names in list order, or "NONE" for an empty list. On screen the names
// stand one per line and the last has no line end of its own (the next separator opens with
// one); in the file every name but the last is followed by a blank line. 0, or the first
// failing code (the walk stops there).
ZMErr AppendNameList(ReportText& text, const SurveyStringList& list, int16_t titleIndex);

// The title, then one "name: count" line per node (the localized "%s: %d"), or "NONE". Every
// line ends in a line end on screen and is followed by a blank line in the file.
ZMErr AppendCountList(ReportText& text, const SurveyStringList& list, int16_t titleIndex);

}  // namespace tolvane
