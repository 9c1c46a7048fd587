#pragma once

#include "HostSession.hpp"

#include <cstdint>
#include <filesystem>
#include <iosfwd>
#include <optional>
#include <string>
#include <vector>

namespace zelmora {

struct DocInfoOptions {
    std::filesystem::path file;
    // --category: the panel mode (2-12) whose text to print; none prints the whole report.
    std::optional<int32_t> mode;
    // --output: the file the panel's Save command writes; the save dialog answers it.
    std::optional<std::filesystem::path> output;
    // --select: ids of the elements selected after opening, in the order given.
    std::vector<std::string> selectIds;
    // Whether the panel reports the selection only; on exactly when something was selected.
    bool selectionOnly = false;
    bool quiet = false;  // no progress bar
    // --usage-log: the file the groups plug-ins log are appended to, as JSON lines.
    std::optional<std::filesystem::path> usageLog;
};

// Runs a document through a host session as an application would: start-up, the document
// opened into the model, the elements asked for selected, then closed again, with the
// notifications of each step. Returns the command's exit status; a document that cannot be
// opened, an id it does not hold, or a usage log that cannot be opened or written, is one line
// on standard error.
int RunDocInfoCommand(const SessionOptions& session, DocInfoOptions& options, std::ostream& out,
                      std::ostream& errors);

}  // namespace zelmora
