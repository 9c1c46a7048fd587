#include "survey/SurveyRecord.hpp"

#include "shell/ErrorAlert.hpp"
#include "shell/SuiteSet.hpp"

namespace tolvane {

Survey* gSurvey = nullptr;

namespace {

ZMMdMemoryHandle sSurveyHandle = nullptr;

}  // namespace

ZMErr MakeSurvey() {
    if (gSurvey != nullptr) {
        return ZM_ERR_NONE;
    }
    ZMMdMemoryHandle handle = nullptr;
    ZMErr error = sMdMemorySuite->NewHandleClear(sizeof(Survey), &handle);
    void* block = nullptr;
    if (error == ZM_ERR_NONE) {
        // The block never moves: it is never resized.
        error = sMdMemorySuite->MdMemoryHandleDeref(handle, &block);
        if (error != ZM_ERR_NONE) {
            sMdMemorySuite->DisposeHandle(handle);
        }
    }
    if (error != ZM_ERR_NONE) {
        ShowErrorAlert(kAlertError, kAlertMessageList, kAlertOutOfMemory, error,
                       "DoTolvaneDlog:NewHandleClear()");
        return error;
    }
    sSurveyHandle = handle;
    gSurvey = static_cast<Survey*>(block);
    ResetSurvey(false);
    return ZM_ERR_NONE;
}

void FreeSurvey() {
    if (gSurvey == nullptr) {
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

}  // namespace tolvane
