#pragma once

#include "survey/SurveyRecord.hpp"

#include <zelmora/ZMTypes.h>

#include <cstdint>

namespace tolvane {

// What the close-time statistics count, field by field in the order the block holds them.
// Counters are unsigned; pointCount sticks at 0xFFFFFFFF (logged as -1) once it overflows.
struct StatisticsRecord {
    uint32_t pathCount;  // open and closed; the log shows closed paths as pathCount - openPathCount
    uint32_t openPathCount;
    uint32_t pointCount;
    uint32_t meshCount;
    uint32_t clipMaskCount;
    uint32_t compoundPathCount;
    uint32_t opacityMaskCount;
    uint32_t fontCount;
    uint32_t grayObjectCount;
    uint32_t secondColorKindCount;  // kept, never logged
    uint32_t linkedImageCount;
    uint32_t embeddedImageCount;
    uint32_t symbolInstanceCount;
    uint32_t globalProcessColorCount;
    uint32_t compoundShapeCount;
    uint32_t blendCount;
    uint32_t tracingObjectCount;
    uint32_t envelopeCount;
    uint32_t flareCount;
    uint32_t graphCount;
    uint32_t pointTypeCount;
    uint32_t areaTypeCount;
    uint32_t pathTypeCount;
    uint16_t colorModel;  // ZM_COLOR_MODEL_..., 0xFFFF until the document's is read
    uint32_t onlineFontInDocument;  // a flag
};

// The statistics block of one run: the record, then the survey the shared collectors write
// to (its record and lists, never the panel's), and the process colours met. The lists'
// lengths are what the log shows.
struct Statistics {
    StatisticsRecord record;
    Survey collected;
    SurveyStringList processColorList;  // the global process colours met, each once
};

// Null outside a run.
extern Statistics* gStatistics;

// Asks the host's memory suite for the zero-filled block. On failure shows the out-of-memory
// alert (place "DoTolvaneDlog:NewHandleClear()") and returns the host's code.
ZMErr MakeStatistics();

// Frees the lists, gives the block back and clears gStatistics. Nothing when there is none.
void FreeStatistics();

}  // namespace tolvane
