#pragma once

#include "survey/SurveyLists.hpp"

#include <zelmora/ZMTypes.h>

#include <cstdint>

namespace tolvane {

// The counters of one survey. All start at 0; pointCount and totalPathLength stick at -1
// once an addition overflows, and the report then prints its fallback text.
struct SurveyRecord {
    int32_t pathCount;
    int32_t openPathCount;  // closed paths are pathCount - openPathCount
    int32_t pointCount;
    int32_t meshCount;
    int32_t clipMaskCount;
    int32_t compoundPathCount;
    int32_t opacityMaskCount;
    int32_t transparentGroupCount;
    int32_t transparentObjectCount;
    int32_t rgbObjectCount;
    int32_t cmykObjectCount;
    int32_t grayObjectCount;
    int32_t spotObjectCount;
    int32_t patternObjectCount;
    int32_t gradientObjectCount;
    int32_t fontCount;
    int32_t linkedImageCount;
    int32_t embeddedImageCount;
    int32_t brushedObjectCount;
    int32_t styledObjectCount;
    int32_t symbolSetCount;
    int32_t symbolInstanceCount;
    int32_t compoundShapeCount;
    int32_t blendCount;
    int32_t foreignObjectCount;
    int32_t livePaintGroupCount;
    int32_t tracingObjectCount;
    int32_t envelopeCount;
    int32_t flareCount;
    int32_t chartCount;
    int32_t graphCount;
    int32_t typeObjectCount;
    int32_t pointTypeCount;
    int32_t areaTypeCount;
    int32_t pathTypeCount;
    double totalPathLength;  // points
};

// Adds a path's segments to pointCount while it is not negative; an addition that leaves it
// smaller than before sets it to -1 for the rest of the survey.
void AddPoints(SurveyRecord& record, int32_t segments);

// The same rule for totalPathLength (points), with -1.0.
void AddPathLength(SurveyRecord& record, double length);

// The one survey of the plug-in: the block the host's memory suite gives, holding the
// record and the heads of its lists.
struct Survey {
    SurveyRecord record;
    SurveyLists lists;
};

// Null until MakeSurvey succeeds and after FreeSurvey.
extern Survey* gSurvey;

// Asks the host's memory suite for the zero-filled block and empties it. On failure shows
// the out-of-memory alert (place "DoTolvaneDlog:NewHandleClear()") and returns the host's
// code; no survey can run then. Does nothing when the survey exists.
ZMErr MakeSurvey();

// Frees the nine lists and gives the block back.
void FreeSurvey();

// Sets every counter to 0 and totalPathLength to 0.0. With freeLists, every node of the
// nine lists is given back; without, the heads are only cleared (for a block that holds no
// nodes yet).
void ResetSurvey(bool freeLists);

// The survey the walk and the collectors write to: the panel's, except inside a
// CollectInto scope.
Survey& CollectingSurvey();

// Sends the walk and the collectors to another survey while it lives, so a run that keeps
// its own counts (the close-time statistics) leaves the panel's survey as it was.
class CollectInto {
public:
    explicit CollectInto(Survey& target);
    ~CollectInto();
    CollectInto(const CollectInto&) = delete;
    CollectInto& operator=(const CollectInto&) = delete;

private:
    Survey* previous_;
};

}  // namespace tolvane
