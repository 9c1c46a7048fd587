#include "inventory/FontInventory.hpp"
#include "shell/SuiteSet.hpp"

namespace tolvane {

int16_t FontTypeIndex(const ZMFontInfo& info) {
    if (info.installed == 0) {
        return kFontTypeNotInstalled;
    }
    if (info.openType != 0) {
        return kFontTypeOpenType;
    }
    if (info.technology == ZM_FONT_TECHNOLOGY_TRUETYPE) {
        return kFontTypeTrueType;
    }
    if (info.technology != ZM_FONT_TECHNOLOGY_POSTSCRIPT) {
        return kFontTypeUnknown;
    }
    if (info.cid != 0) {
        return kFontTypeCidType1;
    }
    if (info.type1 != 0) {
        return kFontTypeType1;
    }
    if (info.bitmap != 0) {
        return kFontTypeBitmap;
    }
    if (info.composite != 0) {
        return kFontTypeComposite;
    }
    // A count the host cannot give is no axes.
    int32_t axes = 0;
    sFontGlueSuite->CountDesignAxes(info.platformFont, &axes);
    return axes > 0 ? kFontTypeMultipleMaster : kFontTypeType1;
}

}  // namespace tolvane
