#include "inventory/ColorInventory.hpp"

#include "inventory/CategoryGate.hpp"
#include "inventory/ListEntry.hpp"
#include "inventory/ProcessColorTally.hpp"
#include "panel/PanelCategories.hpp"
#include "shell/SuiteSet.hpp"
#include "survey/SurveyRecord.hpp"

#include <array>
#include <utility>

namespace tolvane {

namespace {

// A swatch: marked as spot, or by its own model as a process colour. Lab process colours
// count with the RGB objects; the report has no line of their own for them.
ZMErr AddSwatchColor(ZMCustomColorHandle color, PaintKind& marks) {
    ZMCustomColor record{};
    if (sCustomColorSuite->GetCustomColor(color, &record) == ZM_ERR_NONE &&
        (record.flags & ZM_CUSTOM_COLOR_SPOT) != 0) {
        marks |= kPaintSpot;
        if (!ShownOrSaving({kModeSpotColors})) {
            return ZM_ERR_NONE;
        }
        return AddSpotColorEntry(color, kAlertIdSwatch, "AddCustomColor:LinkStrAdd");
    }
    // Read again: the spot test's read may have failed, and its code is the answer.
    record = ZMCustomColor{};
    ZMErr error = sCustomColorSuite->GetCustomColor(color, &record);
    marks |= record.kind == ZM_CUSTOM_COLOR_FOUR ? kPaintCmyk : kPaintRgb;
    if (error != ZM_ERR_NONE) {
        return error;
    }
    // A swatch without the spot mark is a global process colour.
    return AddProcessColor(color);
}

}  // namespace

ZMErr AddCustomColor(const ZMColor& color, PaintKind& marks, int32_t skipSolid) {
    switch (color.kind) {
        case ZM_COLOR_PATTERN:
            marks |= kPaintPattern;
            if (!ShownOrSaving({kModePatterns})) {
                return ZM_ERR_NONE;
            }
            return AddPattern(color.c.pattern, marks, skipSolid);
        case ZM_COLOR_GRADIENT:
            marks |= kPaintGradient;
            // The spot colour category needs them too: their stops list spot colours.
            if (!ShownOrSaving({kModeSpotColors, kModeGradients})) {
                return ZM_ERR_NONE;
            }
            return AddGradient(color.c.gradient);
        default:
            break;
    }
    if (skipSolid != 0) {
        return ZM_ERR_NONE;
    }
    switch (color.kind) {
        case ZM_COLOR_THREE:
            marks |= kPaintRgb;
            return ZM_ERR_NONE;
        case ZM_COLOR_FOUR:
            marks |= kPaintCmyk;
            return ZM_ERR_NONE;
        case ZM_COLOR_GRAY:
            marks |= kPaintGray;
            return ZM_ERR_NONE;
        case ZM_COLOR_CUSTOM:
            return AddSwatchColor(color.c.custom.color, marks);
        default:
            return ZM_ERR_NONE;
    }
}

ZMErr AddMarksToCounters(PaintKind marks) {
    SurveyRecord& record = CollectingSurvey().record;
    // The order the counters are raised in: RGB, CMYK, grayscale, spot, pattern, gradient.
    const std::array<std::pair<PaintKind, int32_t*>, 6> counters{{
        {kPaintRgb, &record.rgbObjectCount},
        {kPaintCmyk, &record.cmykObjectCount},
        {kPaintGray, &record.grayObjectCount},
        {kPaintSpot, &record.spotObjectCount},
        {kPaintPattern, &record.patternObjectCount},
        {kPaintGradient, &record.gradientObjectCount},
    }};
    for (const auto& [mark, counter] : counters) {
        if ((marks & mark) != 0) {
            ++*counter;
        }
    }
    return ZM_ERR_NONE;
}

ZMErr ZM_API AddColorAndCount(void* tally, const ZMColor* color) {
    auto& held = *static_cast<ColorTally*>(tally);
    ZMErr error = AddCustomColor(*color, held.marks, held.skipSolid);
    AddMarksToCounters(held.marks);
    return error;
}

}  // namespace tolvane
