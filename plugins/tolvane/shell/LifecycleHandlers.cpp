#include "shell/Handlers.hpp"

#include "shell/AppContext.hpp"
#include "shell/ErrorAlert.hpp"
#include "shell/FrameworkCalls.hpp"
#include "shell/Globals.hpp"
#include "shell/OptionalSuites.hpp"
#include "shell/PanelCreation.hpp"
#include "shell/SuiteSet.hpp"
#include "survey/SurveyRecord.hpp"

#include <zelmora/ZMPluginMain.h>

namespace tolvane {

namespace {

ZMMessageRecord& Record(void* message) { return *static_cast<ZMMessageRecord*>(message); }

// A new block is written straight into the message, where the host keeps it; a block the
// message already holds is adopted as it stands.
ZMErr SetupGlobals(ZMMessageRecord& record) {
    ScopedAppContext context;
    if (record.globals == nullptr) {
        sBasicSuite->AllocateBlock(sizeof(Globals), &record.globals);
        if (record.globals == nullptr) {
            ShowErrorAlert(kAlertError, kAlertMessageList, kAlertOutOfMemory, ZM_ERR_NO_MEMORY,
                           "SetupGlobals:NewHandleClear");
            return ZM_ERR_NO_MEMORY;
        }
        gGlobals = static_cast<Globals*>(record.globals);
        InitializeGlobals(*gGlobals);
    } else {
        gGlobals = static_cast<Globals*>(record.globals);
    }
    return ZM_ERR_NONE;
}

}  // namespace

ZMErr ZM_API StartupHandler(void* message) {
    ZMMessageRecord& record = Record(message);
    sBasicSuite = record.basicSuite;
    StartFramework();
    return SetupGlobals(record);
}

ZMErr ZM_API ShutdownHandler(void* message) {
    DeletePanel();
    // The survey goes with the panel that shows it, while the memory suite is still held.
    FreeSurvey();
    ReleaseOptionalSuites(Record(message).basicSuite);
    StopFramework();
    return ZM_ERR_NONE;  // shut-down always succeeds
}

ZMErr ZM_API ReloadHandler(void* message) {
    ZMMessageRecord& record = Record(message);
    // The module was loaded afresh, so its own pointers start empty again.
    sBasicSuite = record.basicSuite;
    AcquireOptionalSuites(record.basicSuite);
    gGlobals = static_cast<Globals*>(record.globals);
    StartFramework();
    return ZM_ERR_NONE;
}

ZMErr ZM_API UnloadHandler(void* message) {
    if (gGlobals != nullptr) {
        FreeSurvey();
        // The host closes the panel with the module's code; the block stays with the host,
        // so the pointer must not outlive the unload.
        gGlobals->panel = nullptr;
    }
    ReleaseOptionalSuites(Record(message).basicSuite);
    StopFramework();
    ReleaseFrameworkSuite();
    return ZM_ERR_NONE;
}

}  // namespace tolvane
