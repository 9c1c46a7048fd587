#pragma once

#include "HostSession.hpp"

#include <iosfwd>

namespace zelmora {

// `zelmora plugins`: loads every plug-in it finds and lists the ones that started.
int RunPluginsCommand(const SessionOptions& options, std::ostream& out, std::ostream& errors);

}  // namespace zelmora
