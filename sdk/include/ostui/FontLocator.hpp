#pragma once

#include "ostcore/Export.hpp"

#include <string>

namespace ostui {

// The file of the regular face of an installed family, found through fontconfig. Throws
// FontError when fontconfig can only offer another family as a substitute.
OST_API std::string FindFontFile(const std::string& family);

}  // namespace ostui
