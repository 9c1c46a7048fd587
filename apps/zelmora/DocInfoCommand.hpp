#pragma once

#include "HostSession.hpp"

#include <filesystem>
#include <iosfwd>

namespace zelmora {

struct DocInfoOptions {
    std::filesystem::path file;
};

// Runs a document through a host session as an application would: start-up, the document
// opened into the model, then closed again, with the notifications of each step. Returns the
// command's exit status; a document that cannot be opened is one line on standard error.
int RunDocInfoCommand(const SessionOptions& session, const DocInfoOptions& options,
                      std::ostream& out, std::ostream& errors);

}  // namespace zelmora
