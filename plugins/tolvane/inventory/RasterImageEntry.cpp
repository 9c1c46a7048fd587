#include "inventory/ImageInventory.hpp"

#include "inventory/CategoryGate.hpp"
#include "inventory/ColorInventory.hpp"
#include "inventory/ListEntry.hpp"
#include "inventory/RasterImageBlock.hpp"
#include "panel/PanelCategories.hpp"
#include "report/Error.hpp"
#include "shell/SuiteSet.hpp"
#include "survey/PluginGroups.hpp"
#include "survey/SurveyRecord.hpp"

namespace tolvane {

namespace {

constexpr const char* kListPlace = "AddRasterArt:LinkStrAdd";

// An embedded block is listed every time, so two copies of one image show twice; a linked
// block once, however often its file is placed alike.
ZMErr RecordBlock(const RasterImageBlock& block) {
    Survey& survey = CollectingSurvey();
    if (!block.linked) {
        if (ZMErr error = InsertOrAlert(survey.lists.embeddedImageList, block.text.Get(),
                                        kAlertIdImage, kListPlace, true);
            error != ZM_ERR_NONE) {
            return error;
        }
        ++survey.record.embeddedImageCount;
        return ZM_ERR_NONE;
    }
    if (LinkStrFind(survey.lists.linkedImageList, block.text.Get())) {
        return ZM_ERR_NONE;
    }
    if (ZMErr error = InsertOrAlert(survey.lists.linkedImageList, block.text.Get(), kAlertIdImage,
                                    kListPlace, true);
        error != ZM_ERR_NONE) {
        return error;
    }
    ++survey.record.linkedImageCount;
    return ZM_ERR_NONE;
}

// The spot inks of the image's colour space join the spot colour list. Placed art has no
// raster colour space, so for it the query fails and nothing is added. Only a list that
// cannot take an entry is reported; an ink that no swatch is named after is not.
ZMErr AddImageSpots(ZMArtHandle art) {
    ZMColorSpaceHandle space = nullptr;
    if (sRasterSuite->GetRasterColorSpace(art, &space) != ZM_ERR_NONE) {
        return ZM_ERR_NONE;
    }
    ZMErr error = AddColorSpaceSpots(space);
    return error == ZM_ERR_NO_MEMORY ? error : ZM_ERR_NONE;
}

}  // namespace

ZMErr AddRasterArt(ZMArtHandle art, int32_t placed) {
    int32_t isSet = 0;
    if (IsSymbolSetGroup(art, isSet) != ZM_ERR_NONE || isSet != 0) {
        return ZM_ERR_NONE;  // an instance of a symbol set is counted as one, nothing more
    }
    RasterImageBlock block;
    if (zm::CodeOrNoMemory([&]() -> ZMErr {
            block = DescribeRasterImage(art, placed != 0);
            return ZM_ERR_NONE;
        }) != ZM_ERR_NONE) {
        return ZM_ERR_NONE;  // an image the host cannot describe is left out
    }
    // A list that cannot take the block has shown its alert and ends the survey step; a
    // comparison the host cannot make is a failing query like any other.
    if (ZMErr error = zm::CodeOrNoMemory([&] { return RecordBlock(block); });
        error != ZM_ERR_NONE) {
        return error == ZM_ERR_NO_MEMORY ? error : ZM_ERR_NONE;
    }
    if (ShownOrSaving({kModeSpotColors})) {
        return AddImageSpots(art);
    }
    return ZM_ERR_NONE;
}

}  // namespace tolvane
