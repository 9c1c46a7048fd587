#include "survey/SurveyLists.hpp"

#include <initializer_list>

namespace tolvane {

void FreeSurveyLists(SurveyLists& lists) {
    for (SurveyStringList* list :
         {&lists.spotColorList, &lists.patternList, &lists.gradientList, &lists.brushList,
          &lists.fontList, &lists.linkedImageList, &lists.embeddedImageList,
          &lists.fontDetailList, &lists.graphicStyleList}) {
        FreeSurveyStringList(*list);
    }
}

}  // namespace tolvane
