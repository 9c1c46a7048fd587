#pragma once

#include "report/ReportText.hpp"

#include <zelmora/ZMTypes.h>

#include <cstdint>

namespace tolvane {

// Writes the report of one category (a value of Globals::mode) into both texts, from the
// document itself (Document) or from the last survey (the lists). Any other value writes
// nothing. Returns the first failing host code.
ZMErr WriteCategoryReport(ReportText& text, int16_t mode);

}  // namespace tolvane
