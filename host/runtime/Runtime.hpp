#pragma once

#include "fonts/FontCatalogue.hpp"
#include "loader/PluginManager.hpp"
#include "localization/Localizer.hpp"
#include "registry/SuiteRegistry.hpp"
#include "runtime/AlertLog.hpp"
#include "runtime/BlockAllocator.hpp"
#include "runtime/ContextStack.hpp"
#include "runtime/DataFilters.hpp"
#include "runtime/DialogAnswers.hpp"
#include "runtime/DocumentList.hpp"
#include "runtime/FaultPlan.hpp"
#include "runtime/LiveCornersObjects.hpp"
#include "runtime/MaskReferences.hpp"
#include "runtime/MemoryHandles.hpp"
#include "runtime/HostObjects.hpp"
#include "runtime/MenuBar.hpp"
#include "runtime/NamedPlugins.hpp"
#include "runtime/NotifierCenter.hpp"
#include "runtime/Preferences.hpp"
#include "runtime/ProgressDisplay.hpp"
#include "runtime/ToolkitRulerUnit.hpp"
#include "runtime/UsageLog.hpp"

#include <string>
#include <vector>

namespace zm::host {

// One framework Dispatch as the framework received it; tests read these to see which
// messages reached the framework.
struct DispatchRecord {
    std::string caller;
    std::string selector;
    bool signatureValid = false;
};

// The host of one process. Suite entries are plain C functions without a context argument,
// so they reach the host through Current(); one runtime exists at a time.
class Runtime {
public:
    Runtime();
    ~Runtime();
    Runtime(const Runtime&) = delete;
    Runtime& operator=(const Runtime&) = delete;

    // Throws HostError(ZM_ERR_NOT_STARTED) when no runtime exists.
    static Runtime& Current();

    FaultPlan faults;
    SuiteRegistry suites;
    BlockAllocator blocks{faults};
    AlertLog alerts;
    ContextStack contexts;
    MenuBar menus;
    NotifierCenter notifiers;
    Localizer localizer;
    std::vector<DispatchRecord> dispatches;
    DocumentList documents;
    ToolkitRulerUnit toolkitRulerUnit{documents};
    MemoryHandles memory{faults};
    MaskReferences masks;
    NamedPlugins namedPlugins;
    LiveCornersObjects liveCorners;
    Preferences preferences;
    HostObjects objects;  // what plug-ins hold by handle and give back
    ProgressDisplay progress;
    DialogAnswers dialogs;
    UsageLog usage;  // groups plug-ins log; a file only when one was opened
    fonts::FontCatalogue fonts;
    DataFilters dataFilters{blocks};  // after `blocks`, so it goes first: its handles are blocks
    // Last, so that plug-ins still loaded are stopped while everything else still exists.
    PluginManager plugins;
};

}  // namespace zm::host
