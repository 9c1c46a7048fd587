#include "ostzm/PanelIcons.hpp"

namespace ostzm {

namespace {

constexpr std::string_view kNormalPrefix = "HV_PL_";

}  // namespace

std::string IconResourceName(const std::string& iconName, IconScale scale) {
    if (iconName.rfind(kNormalPrefix, 0) != 0) {
        return iconName;
    }
    std::string rest = iconName.substr(kNormalPrefix.size());
    switch (scale) {
        case IconScale::Normal:
            return iconName;
        case IconScale::ThreeHalves:
            return "HV_x15_PL_" + rest;
        case IconScale::Double:
            return "HV_x2_PL_" + rest;
    }
    return iconName;
}

}  // namespace ostzm
