#pragma once

#include "survey/SurveyStringList.hpp"

namespace tolvane {

// The nine lists one survey fills, in the order the report shows them by category.
struct SurveyLists {
    SurveyStringList spotColorList;      // sorted, counted
    SurveyStringList patternList;        // sorted, counted
    SurveyStringList gradientList;       // sorted, counted
    SurveyStringList brushList;          // sorted, counted
    SurveyStringList fontList;           // sorted, counted
    SurveyStringList linkedImageList;    // paths appended, raster blocks sorted with repeats
    SurveyStringList embeddedImageList;  // sorted, repeats allowed
    SurveyStringList fontDetailList;     // appended in visiting order
    SurveyStringList graphicStyleList;   // sorted, counted
};

// Gives back every node of every list and leaves them empty.
void FreeSurveyLists(SurveyLists& lists);

}  // namespace tolvane
