#include "report/HostFilePath.hpp"

#include "report/Error.hpp"
#include "shell/SuiteSet.hpp"

namespace tolvane {

HostFilePath::HostFilePath() { zm::Check(sFilePathSuite->NewFilePath(&path_)); }

HostFilePath::~HostFilePath() { sFilePathSuite->DisposeFilePath(path_); }

}  // namespace tolvane
