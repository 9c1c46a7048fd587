#pragma once

#include "report/HostString.hpp"

namespace tolvane {

// The summed length of the surveyed paths (kept in points) in the unit of the document's
// rulers, as the UI toolkit prints it: the number, a blank and the unit's abbreviation, with
// 4 decimals when the host preference "rulerType" is 0 or 4 and 3 otherwise (absent counts
// as 2). A negative length (the sum overflowed) gives "too long to display". Failing host
// calls throw zm::Error with the host's code.
HostString PathLengthText(double totalPathLength);

}  // namespace tolvane
