#pragma once

#include "registry/SuiteRegistry.hpp"

namespace zm::host {

// Every suite the host offers, each from the file that implements it.
void RegisterAllSuites(SuiteRegistry& registry);

}  // namespace zm::host
