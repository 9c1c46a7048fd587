#include "stats/StatisticsRecord.hpp"

#include "shell/ErrorAlert.hpp"
#include "shell/FixedBlock.hpp"
#include "shell/SuiteSet.hpp"

namespace tolvane {

Statistics* gStatistics = nullptr;

namespace {

ZMMdMemoryHandle sStatisticsHandle = nullptr;

}  // namespace

ZMErr MakeStatistics() {
    ZMMdMemoryHandle handle = nullptr;
    void* block = nullptr;
    if (ZMErr error = NewFixedBlock(sizeof(Statistics), handle, block); error != ZM_ERR_NONE) {
        // Only a note: the document closes all the same, without its statistics.
        ShowErrorAlert(kAlertNote, kAlertMessageList, kAlertOutOfMemory, kAlertCodeRecord,
                       "DoTolvaneDlog:NewHandleClear()");
        return error;
    }
    sStatisticsHandle = handle;
    gStatistics = static_cast<Statistics*>(block);
    return ZM_ERR_NONE;
}

void FreeStatistics() {
    if (gStatistics == nullptr) {
        return;
    }
    FreeSurveyLists(gStatistics->collected.lists);
    FreeSurveyStringList(gStatistics->processColorList);
    sMdMemorySuite->DisposeHandle(sStatisticsHandle);
    sStatisticsHandle = nullptr;
    gStatistics = nullptr;
}

}  // namespace tolvane
