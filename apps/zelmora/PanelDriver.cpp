#include "PanelDriver.hpp"

#include <loader/LoadedPlugin.hpp>

#include <ostui/FlyoutMenu.hpp>
#include <ostzm/PanelRegistry.hpp>
#include <ostzm/ZMUIBasePanel.hpp>

#include <stdexcept>

namespace zelmora {

namespace {

constexpr int kSelectionOnlyItem = 1;
constexpr int kSaveItem = 13;

ostzm::ZMUIBasePanel& RequirePanel(zm::host::LoadedPlugin& plugin) {
    ostzm::ZMUIBasePanel* panel = ostzm::PanelRegistry::FindPanel(plugin.Ref());
    if (panel == nullptr) {
        throw std::runtime_error("the " + plugin.Name() + " plug-in made no panel");
    }
    return *panel;
}

}  // namespace

PanelDriver::PanelDriver(zm::host::Runtime& runtime, zm::host::LoadedPlugin& plugin)
    : runtime_(runtime), plugin_(plugin) {}

void PanelDriver::ShowPanel() {
    for (const auto& item : runtime_.menus.Items()) {
        if (item->plugin != plugin_.Ref()) {
            continue;
        }
        ZMErr error = runtime_.plugins.RunMenuItem(runtime_.menus.HandleOf(*item));
        if (error != ZM_ERR_NONE) {
            throw std::runtime_error("the " + plugin_.Name() +
                                     " plug-in's menu command failed with code " +
                                     std::to_string(error));
        }
        RequirePanel(plugin_);
        return;
    }
    throw std::runtime_error("the " + plugin_.Name() + " plug-in has no menu item");
}

void PanelDriver::SetSelectionOnly(bool on) {
    ostzm::ZMUIBasePanel& panel = RequirePanel(plugin_);
    ostui::FlyoutMenuPtr menu = panel.GetFlyoutMenu();
    if (menu && menu->IsItemChecked(kSelectionOnlyItem) != on) {
        panel.ChooseFlyoutItem(kSelectionOnlyItem);
    }
}

void PanelDriver::ChooseCategory(int32_t mode) { RequirePanel(plugin_).ChooseFlyoutItem(mode); }

void PanelDriver::Save() { RequirePanel(plugin_).ChooseFlyoutItem(kSaveItem); }

std::string PanelDriver::ShownText() const {
    return ostzm::PanelRegistry::ShownText(RequirePanel(plugin_));
}

}  // namespace zelmora
