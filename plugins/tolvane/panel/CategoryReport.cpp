#include "panel/CategoryReport.hpp"

#include "panel/PanelCategories.hpp"
#include "report/DocumentSection.hpp"
#include "report/ObjectsSection.hpp"
#include "report/ReportLists.hpp"
#include "report/StringGroups.hpp"
#include "survey/SurveyRecord.hpp"

namespace tolvane {

ZMErr WriteCategoryReport(ReportText& text, int16_t mode) {
    if (mode == kModeDocument) {
        return AppendDocumentSection(text);
    }
    // The lists belong to the survey; without one there is nothing to list.
    if (gSurvey == nullptr) {
        return ZM_ERR_NONE;
    }
    const SurveyLists& lists = gSurvey->lists;
    switch (mode) {
        case kModeObjects:
            return WriteObjectsSection(text);
        case kModeGraphicStyles:
            return AppendCountList(text, lists.graphicStyleList, kTitleGraphicStyles);
        case kModeBrushes:
            return AppendNameList(text, lists.brushList, kTitleBrushes);
        case kModeSpotColors:
            return AppendNameList(text, lists.spotColorList, kTitleSpotColors);
        case kModePatterns:
            return AppendNameList(text, lists.patternList, kTitlePatterns);
        case kModeGradients:
            return AppendNameList(text, lists.gradientList, kTitleGradients);
        case kModeFonts:
            return AppendNameList(text, lists.fontList, kTitleFonts);
        case kModeLinkedImages:
            return AppendNameList(text, lists.linkedImageList, kTitleLinkedImages);
        case kModeEmbeddedImages:
            return AppendNameList(text, lists.embeddedImageList, kTitleEmbeddedImages);
        case kModeFontDetails:
            return AppendNameList(text, lists.fontDetailList, kTitleFontDetails);
        default:
            return ZM_ERR_NONE;
    }
}

}  // namespace tolvane
