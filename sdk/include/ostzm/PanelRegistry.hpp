#pragma once

#include "ostcore/Export.hpp"

#include <zelmora/ZMTypes.h>

#include <string>
#include <vector>

namespace ostzm {

class ZMUIBasePanel;

// Every live panel, in the order they were made: what the host reaches panels through. Panels
// add and remove themselves; the registry owns none of them.
class OST_API PanelRegistry {
public:
    static std::vector<ZMUIBasePanel*> Panels();
    // The first live panel of a plug-in; null when it has none.
    static ZMUIBasePanel* FindPanel(ZMPluginRef plugin);
    static bool IsLive(const ZMUIBasePanel* panel);

    // The text the panel shows: the texts of the static texts in its lists' rows, in row
    // order, joined without anything between them.
    static std::string ShownText(const ZMUIBasePanel& panel);

    // Closes every panel of a plug-in whose code is about to go, while the code that can
    // destroy them is still there. The plug-in must not use them afterwards.
    static void ClosePanelsOf(ZMPluginRef plugin);

private:
    friend class ZMUIBasePanel;
    static void Add(ZMUIBasePanel* panel);
    static void Remove(ZMUIBasePanel* panel);
};

}  // namespace ostzm
