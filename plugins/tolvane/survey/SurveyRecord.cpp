#include "survey/SurveyRecord.hpp"

#include "shell/ErrorAlert.hpp"
#include "shell/FixedBlock.hpp"
#include "shell/SuiteSet.hpp"

namespace tolvane {

Survey* gSurvey = nullptr;

namespace {

ZMMdMemoryHandle sSurveyHandle = nullptr;

// Null: the collectors write to the panel's survey.
Survey* sCollectingTarget = nullptr;

}  // namespace

void AddPoints(SurveyRecord& record, int32_t segments) {
    if (record.pointCount < 0) {
        return;
    }
    // Unsigned arithmetic wraps where signed would be undefined; the wrap is the signal.
    auto sum = static_cast<int32_t>(static_cast<uint32_t>(record.pointCount) +
                                    static_cast<uint32_t>(segments));
    record.pointCount = sum < record.pointCount ? -1 : sum;
}

void AddPathLength(SurveyRecord& record, double length) {
    if (record.totalPathLength < 0.0) {
        return;
    }
    double sum = record.totalPathLength + length;
    record.totalPathLength = sum < record.totalPathLength ? -1.0 : sum;
}

ZMErr MakeSurvey() {
    if (gSurvey != nullptr) {
        return ZM_ERR_NONE;
    }
    ZMMdMemoryHandle handle = nullptr;
    void* block = nullptr;
    if (ZMErr error = NewFixedBlock(sizeof(Survey), handle, block); error != ZM_ERR_NONE) {
        // The alert names the place with the panel's own code for it, not the host's.
        ShowErrorAlert(kAlertError, kAlertMessageList, kAlertOutOfMemory, kAlertCodeRecord,
                       "DoTolvaneDlog:NewHandleClear()");
        return error;
    }
    sSurveyHandle = handle;
    gSurvey = static_cast<Survey*>(block);
    ResetSurvey(false);
    return ZM_ERR_NONE;
}

void FreeSurvey() {
    // After shut-down the suites are gone, and with them any way to give the block back;
    // the host reclaims what a plug-in left behind.
    if (gSurvey == nullptr || sMdMemorySuite == nullptr) {
        return;
    }
    FreeSurveyLists(gSurvey->lists);
    sMdMemorySuite->DisposeHandle(sSurveyHandle);
    sSurveyHandle = nullptr;
    gSurvey = nullptr;
}

void ResetSurvey(bool freeLists) {
    gSurvey->record = SurveyRecord{};
    if (freeLists) {
        FreeSurveyLists(gSurvey->lists);
    } else {
        gSurvey->lists = SurveyLists{};
    }
}

Survey& CollectingSurvey() {
    return sCollectingTarget != nullptr ? *sCollectingTarget : *gSurvey;
}

CollectInto::CollectInto(Survey& target) : previous_(sCollectingTarget) {
    sCollectingTarget = &target;
}

CollectInto::~CollectInto() { sCollectingTarget = previous_; }

}  // namespace tolvane
