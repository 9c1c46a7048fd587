#pragma once

#include <cstdint>
#include <string>

namespace ostzm {

// How a panel first appears. Plug-ins derive their own options record and fill it in its
// constructor.
struct BasePanelCreationOptions {
    int32_t baseFlag = 0;
    std::string titleKey;      // localizable key of the title
    std::string defaultTitle;  // the title when the key is empty
    float initialWidth = 0.0f;
    float initialHeight = 0.0f;
    int32_t flag = 0;
    std::string iconName;      // image resource of the panel's tab
    std::string darkIconName;  // the same for a dark theme
    int32_t lastField = 0;

    virtual ~BasePanelCreationOptions() = default;
};

}  // namespace ostzm
