#pragma once

namespace tolvane {

// For every live shape with corners, in document order, logs the group "Shape Document Close
// Group": whether all its corners share corner 0's type, rounding type and radius (within
// 2^-16 points). Nothing is reported to the user; a corners object the host cannot make ends
// the run.
void LogLiveShapeStatistics();

}  // namespace tolvane
