#pragma once

#include "report/ReportText.hpp"
#include "survey/SurveyLists.hpp"

#include <zelmora/ZMTypes.h>

#include <cstdint>
#include <span>

namespace tolvane {

// One report section that lists a survey list under its title: the panel shows it for its
// category, Save writes them all.
struct ListSection {
    int16_t mode;  // the panel category that shows it
    SurveyStringList SurveyLists::*list;
    int16_t title;  // ResTitleTextBase
    bool counted;   // "name: count" lines instead of names
};

// The nine list sections in the order of the saved report.
std::span<const ListSection> ListSections();

// The section shown for a panel category; null for the categories that are not lists.
const ListSection* ListSectionOf(int16_t mode);

// The section from the current survey's list.
ZMErr WriteListSection(ReportText& text, const ListSection& section);

}  // namespace tolvane
