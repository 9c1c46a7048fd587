#include "inventory/ColorInventory.hpp"

#include "inventory/ListEntry.hpp"
#include "report/Error.hpp"
#include "report/HostString.hpp"
#include "shell/SuiteSet.hpp"

namespace tolvane {

namespace {

// A separation's ink is the spot colour of the document's swatch of the same name. Only the
// first colorant is looked at.
ZMErr AddSeparationSpot(ZMColorSpaceHandle space) {
    return zm::CodeOrNoMemory([&]() -> ZMErr {
        int32_t colorants = 0;
        zm::Check(sColorSpaceSuite->CountColorants(space, &colorants));
        if (colorants < 1) {
            return ZM_ERR_NONE;
        }
        HostString ink = HostString::Empty();
        zm::Check(sColorSpaceSuite->GetColorantName(space, 0, ink.Get()));
        ZMCustomColorHandle color = nullptr;
        zm::Check(sCustomColorSuite->FindCustomColor(ink.Get(), &color));
        return AddSpotColorEntry(color, kAlertIdSwatch, "AddCustomColor:LinkStrAdd");
    });
}

// Every member of a DeviceN space, until one fails.
ZMErr AddMemberSpots(ZMColorSpaceHandle space) {
    int32_t members = 0;
    if (ZMErr error = sColorSpaceSuite->CountColorSpaceMembers(space, &members);
        error != ZM_ERR_NONE) {
        return error;
    }
    for (int32_t i = 0; i < members; ++i) {
        ZMColorSpaceHandle member = nullptr;
        if (ZMErr error = sColorSpaceSuite->GetNthColorSpaceMember(space, i, &member);
            error != ZM_ERR_NONE) {
            return error;
        }
        if (ZMErr error = AddColorSpaceSpots(member); error != ZM_ERR_NONE) {
            return error;
        }
    }
    return ZM_ERR_NONE;
}

}  // namespace

ZMErr AddColorSpaceSpots(ZMColorSpaceHandle space) {
    int16_t family = 0;
    if (ZMErr error = sColorSpaceSuite->GetColorSpaceFamily(space, &family); error != ZM_ERR_NONE) {
        return error;
    }
    switch (family) {
        case ZM_COLOR_SPACE_INDEXED: {
            ZMColorSpaceHandle base = nullptr;
            if (ZMErr error = sColorSpaceSuite->GetBaseColorSpace(space, &base);
                error != ZM_ERR_NONE) {
                return error;
            }
            return AddColorSpaceSpots(base);
        }
        case ZM_COLOR_SPACE_DEVICE_N:
            return AddMemberSpots(space);
        case ZM_COLOR_SPACE_SEPARATION:
            return AddSeparationSpot(space);
        default:
            return ZM_ERR_NONE;
    }
}

}  // namespace tolvane
