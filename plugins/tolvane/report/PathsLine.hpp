#pragma once

#include "report/HostString.hpp"
#include "survey/SurveyRecord.hpp"

namespace tolvane {

// What follows "Paths: " in the Objects section: `none` when no path was surveyed; the path
// count alone once the point count has overflowed; otherwise the path count and, in
// parentheses, the open and closed paths, the points and the length. The counts print as
// plain digits, not as the number formatter would. Failing host calls throw zm::Error.
HostString PathsValue(const SurveyRecord& record, ZMUnicodeString none);

}  // namespace tolvane
