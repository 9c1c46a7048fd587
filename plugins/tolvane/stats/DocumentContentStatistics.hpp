#pragma once

namespace tolvane {

// Counts what the current document holds and hands the counts to the host's usage-data suite
// as the group "Document Content Information", then logs its live shapes' corners. Runs on
// its own record and lists: the panel and its survey stay as they were. Nothing is logged
// without the usage-data suite; no failure reaches the user except a block that cannot be had.
void LogDocumentContentStatistics();

}  // namespace tolvane
