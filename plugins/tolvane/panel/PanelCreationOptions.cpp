#include "panel/PanelCreationOptions.hpp"

namespace tolvane {

PanelCreationOptions::PanelCreationOptions() {
    baseFlag = 1;
    titleKey = "$$$/TolvanePXM/Title=Document Info";
    defaultTitle = "Document Info";
    initialWidth = 230.0f;
    initialHeight = 257.0f;
    flag = 1;
    iconName = "HV_PL_Tolvane_N";
    darkIconName = "HV_PL_Tolvane_N_D";
    lastField = 0;
}

}  // namespace tolvane
