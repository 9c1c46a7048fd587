#include "inventory/ImageInventory.hpp"

#include "inventory/ImageAssetUrl.hpp"
#include "inventory/ImagePathText.hpp"
#include "report/Error.hpp"
#include "report/HostFilePath.hpp"
#include "report/LoadTolvaneString.hpp"
#include "shell/SuiteSet.hpp"
#include "survey/SurveyRecord.hpp"

namespace tolvane {

namespace {

// Linked-image entries keep the order the images are met in, repeats included: the empty
// separator entries are all alike.
ZMErr AppendEntry(SurveyStringList& list, const HostString& entry) {
    return LinkStrAppend(list, entry.Get(), true) == ZM_ERR_NONE ? ZM_ERR_NONE : ZM_ERR_NO_MEMORY;
}

}  // namespace

ZMErr AddPlacedArt(ZMArtHandle placed) {
    return zm::CodeOrNoMemory([&]() -> ZMErr {
        HostString path = HostString::Empty();
        {
            HostFilePath file;
            // A path the host cannot give stays empty and is shown as an unknown image.
            sPlacedSuite->GetPlacedFilePath(placed, file.Get());
            ImagePathText(file.Get(), path);
        }
        SurveyStringList& linked = CollectingSurvey().lists.linkedImageList;
        if (LinkStrFind(linked, path.Get())) {
            return ZM_ERR_NONE;  // each file is described once
        }
        if (AppendEntry(linked, HostString::Empty()) != ZM_ERR_NONE ||
            AppendEntry(linked, path) != ZM_ERR_NONE) {
            return ZM_ERR_NO_MEMORY;
        }
        ++CollectingSurvey().record.linkedImageCount;
        ZMPlacedType type = ZM_PLACED_TYPE_OTHER;
        if (ZMErr error = sPlacedSuite->GetPlacedType(placed, &type); error != ZM_ERR_NONE) {
            return error;
        }
        HostString typeLine = LoadTolvaneString(ResImage, kImageType);
        typeLine.Append(
            LoadTolvaneString(ResImage, type == ZM_PLACED_TYPE_EPS ? kImageEps : kImageOther));
        if (ZMErr error = AppendEntry(linked, typeLine); error != ZM_ERR_NONE) {
            return error;
        }
        if (std::optional<HostString> url = AssetUrlText(placed)) {
            return AppendEntry(linked, *url);
        }
        return ZM_ERR_NONE;
    });
}

}  // namespace tolvane
