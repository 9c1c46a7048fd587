#pragma once

#include <zelmora/ZMTypes.h>

#include <cstdint>

namespace tolvane {

class TolvanePanel;

// The plug-in's state that outlives an unload: the host owns the block and hands it back
// in every message, so the chosen category and the selection-only flag survive a reload.
struct Globals {
    int16_t mode;                         // panel category 2..12; 0 until one is chosen
    ZMMenuItemHandle menuItem;            // the "&Document Info" menu item
    ZMNotifierHandle selectionNotifier;   // "ZM Art Selection Changed Notifier"
    ZMNotifierHandle propertiesNotifier;  // "ZM Art Properties Changed Notifier"
    TolvanePanel* panel;                  // owned through this field
    int32_t selectionOnly;                // nonzero: survey the selection only
    void* lastNotifyData;                 // data of the last notification that refreshed
    int32_t saving;                       // 1 while the report is being written to a file
    ZMNotifierHandle cropAreaNotifier;    // "ZM Document Crop Area Modified Notifier"
};

// The globals block of the current message; null until start-up or reload adopts one.
extern Globals* gGlobals;

// The values a new block starts with.
void InitializeGlobals(Globals& globals);

}  // namespace tolvane
