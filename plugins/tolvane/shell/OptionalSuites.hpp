#pragma once

#include <zelmora/ZMBasicSuite.h>
#include <zelmora/ZMLiveShapesSuite.h>

namespace tolvane {

// Suites the plug-in can do without. Acquired once the application has started and on
// reload; released at shut-down and unload. Null when the host does not offer them.
extern const void* sLiveShapesSuite;

// Errors are ignored: a missing suite leaves its pointer null.
void AcquireOptionalSuites(ZMBasicSuite* basic);
void ReleaseOptionalSuites(ZMBasicSuite* basic);

}  // namespace tolvane
