#include "inventory/ListEntry.hpp"

#include "shell/ErrorAlert.hpp"

namespace tolvane {

ZMErr InsertOrAlert(SurveyStringList& list, ZMUnicodeString text, int32_t alertCode,
                    const char* place, bool allowRepeat) {
    if (LinkStrAdd(list, text, allowRepeat) == ZM_ERR_NONE) {
        return ZM_ERR_NONE;
    }
    ShowErrorAlert(kAlertError, kAlertMessageList, kAlertOutOfMemory, alertCode, place);
    return ZM_ERR_NO_MEMORY;
}

}  // namespace tolvane
