#include "survey/ForeignObjectSurvey.hpp"

#include "inventory/ColorInventory.hpp"
#include "inventory/FontInventory.hpp"
#include "shell/Globals.hpp"
#include "shell/SuiteSet.hpp"
#include "survey/SurveyRecord.hpp"

namespace tolvane {

namespace {

ZMErr ZM_API OfferFont(void*, ZMFontKey font) { return AddFont(font); }

// Each swatch is its own paint, so each raises the counters of its models again: a content
// painted with three swatches counts three objects' worth.
ZMErr ZM_API CountContentItem(void* inMask, const ZMFOContentItem* item) {
    switch (item->kind) {
    case ZM_FO_CONTENT_TRANSPARENCY:
        if (item->value.flag != 0) {
            ++CollectingSurvey().record.transparentObjectCount;
        }
        return ZM_ERR_NONE;
    case ZM_FO_CONTENT_CUSTOM_COLOR: {
        ZMColor color{};
        color.kind = ZM_COLOR_CUSTOM;
        color.c.custom.color = item->value.customColor;
        color.c.custom.tint = 1.0;
        PaintKind marks = 0;
        if (ZMErr error = AddCustomColor(color, marks, *static_cast<const int32_t*>(inMask));
            error != ZM_ERR_NONE) {
            return error;
        }
        return AddMarksToCounters(marks);
    }
    default:
        return ZM_ERR_NONE;  // nothing the survey counts
    }
}

}  // namespace

ZMErr VisitForeignObject(ZMArtHandle art, int32_t inMask) {
    ++CollectingSurvey().record.foreignObjectCount;
    if (sFoConversionSuite->EnumerateFonts(art, OfferFont, nullptr) == ZM_ERR_NONE) {
        sFoConversionSuite->EnumerateContents(art, CountContentItem, &inMask);
    }
    return ZM_ERR_NONE;
}

}  // namespace tolvane
