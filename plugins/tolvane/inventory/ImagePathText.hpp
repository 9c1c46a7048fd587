#pragma once

#include "report/HostString.hpp"

#include <zelmora/ZMArtTypes.h>
#include <zelmora/ZMTypes.h>

namespace tolvane {

// Appends the image file's full path to text, or "(Unknown image)" when the path gives no
// text (an image that names no file, or a path the host cannot show). Always 0; a string
// that cannot be fetched or appended throws zm::Error.
ZMErr ImagePathText(ZMFilePath file, HostString& text);

}  // namespace tolvane
