#include "panel/CategoryReport.hpp"

#include "panel/PanelCategories.hpp"
#include "report/DocumentSection.hpp"
#include "report/ListSections.hpp"
#include "report/ObjectsSection.hpp"
#include "survey/SurveyRecord.hpp"

namespace tolvane {

ZMErr WriteCategoryReport(ReportText& text, int16_t mode) {
    if (mode == kModeDocument) {
        return AppendDocumentSection(text);
    }
    // The other categories show what the survey found; without one there is nothing.
    if (gSurvey == nullptr) {
        return ZM_ERR_NONE;
    }
    if (mode == kModeObjects) {
        return WriteObjectsSection(text);
    }
    if (const ListSection* section = ListSectionOf(mode)) {
        return WriteListSection(text, *section);
    }
    return ZM_ERR_NONE;
}

}  // namespace tolvane
