#pragma once

#include "report/ReportText.hpp"
#include "report/StringGroups.hpp"

#include <zelmora/ZMTypes.h>

#include <cstdint>

namespace tolvane {

// The save text never grows to this many characters (UTF-16 units) or more; a line that
// would reach it is dropped from both texts without a word, and shorter lines may still fit.
inline constexpr int64_t kReportCeiling = 0x100000;

// Appends line to the display text followed by `breaks` line ends (none for 0 or less), and
// to the save text followed by exactly one. The caller's line gets the "\r\n" appended in
// place. 0, or the code of the suite call that failed (what was appended before stays).
ZMErr AppendReportLine(ReportText& text, ZMUnicodeString line, int16_t breaks);

// The section title titleIndex of ResTitleTextBase: a blank line follows it on screen, a
// single line end in the file.
ZMErr AppendSectionTitle(ReportText& text, int16_t titleIndex);

// "\r\n", 77 hyphens, "\r\n" with no further break on screen; a failure is ignored.
void AppendSeparator(ReportText& text);

// "\r\n" as a host string, from the program's own bytes.
HostString LineBreak();

}  // namespace tolvane
