#include "ostzm/PanelRegistry.hpp"

#include "ostui/ListBox.hpp"
#include "ostui/StaticText.hpp"
#include "ostzm/ZMUIBasePanel.hpp"

#include <algorithm>
#include <mutex>

namespace ostzm {

namespace {

struct Panels {
    std::mutex mutex;
    std::vector<ZMUIBasePanel*> live;
};

Panels& ThePanels() {
    static Panels panels;
    return panels;
}

void AppendTexts(const ostui::View& view, std::string& text) {
    if (auto* shown = dynamic_cast<const ostui::StaticText*>(&view)) {
        text += shown->Text();
    }
    for (const ostui::ViewPtr& child : view.Children()) {
        AppendTexts(*child, text);
    }
}

void AppendListTexts(const ostui::View& view, std::string& text) {
    if (auto* list = dynamic_cast<const ostui::ListBox*>(&view)) {
        for (const ostui::ListItemPtr& item : list->Items()) {
            AppendTexts(*item, text);
        }
        return;
    }
    for (const ostui::ViewPtr& child : view.Children()) {
        AppendListTexts(*child, text);
    }
}

}  // namespace

std::vector<ZMUIBasePanel*> PanelRegistry::Panels() {
    auto& panels = ThePanels();
    std::lock_guard lock(panels.mutex);
    return panels.live;
}

void PanelRegistry::ClosePanelsOf(ZMPluginRef plugin) {
    std::vector<ZMUIBasePanel*> closing;
    for (ZMUIBasePanel* panel : Panels()) {
        if (panel->Plugin() == plugin) {
            closing.push_back(panel);
        }
    }
    // Each destructor takes its panel off the list, so none is deleted while the lock is held.
    for (ZMUIBasePanel* panel : closing) {
        delete panel;
    }
}

ZMUIBasePanel* PanelRegistry::FindPanel(ZMPluginRef plugin) {
    auto& panels = ThePanels();
    std::lock_guard lock(panels.mutex);
    auto found = std::find_if(panels.live.begin(), panels.live.end(),
                              [&](const ZMUIBasePanel* panel) { return panel->Plugin() == plugin; });
    return found == panels.live.end() ? nullptr : *found;
}

bool PanelRegistry::IsLive(const ZMUIBasePanel* panel) {
    auto& panels = ThePanels();
    std::lock_guard lock(panels.mutex);
    return std::find(panels.live.begin(), panels.live.end(), panel) != panels.live.end();
}

std::string PanelRegistry::ShownText(const ZMUIBasePanel& panel) {
    std::string text;
    if (panel.GetView()) {
        AppendListTexts(*panel.GetView(), text);
    }
    return text;
}

void PanelRegistry::Add(ZMUIBasePanel* panel) {
    auto& panels = ThePanels();
    std::lock_guard lock(panels.mutex);
    panels.live.push_back(panel);
}

void PanelRegistry::Remove(ZMUIBasePanel* panel) {
    auto& panels = ThePanels();
    std::lock_guard lock(panels.mutex);
    std::erase(panels.live, panel);
}

}  // namespace ostzm
