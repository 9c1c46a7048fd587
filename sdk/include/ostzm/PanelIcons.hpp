#pragma once

#include "ostcore/Export.hpp"

#include <string>

namespace ostzm {

// Icon scales a panel icon comes in.
enum class IconScale { Normal, ThreeHalves, Double };

// The resource name of an icon at a scale. Icon names start "HV_PL_"; the double-resolution
// variant replaces that with "HV_x2_PL_" and the 3:2 variant with "HV_x15_PL_". A name that
// does not start "HV_PL_" has no variants and is returned as it is.
OST_API std::string IconResourceName(const std::string& iconName, IconScale scale);

}  // namespace ostzm
