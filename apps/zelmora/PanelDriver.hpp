#pragma once

#include <runtime/Runtime.hpp>

#include <cstdint>
#include <string>

namespace zelmora {

// What a user does with the Document Info panel, done through the host: choosing its menu
// item, then its flyout items, then reading what it shows.
class PanelDriver {
public:
    // Throws std::runtime_error when the plug-in has no menu item or no panel.
    PanelDriver(zm::host::Runtime& runtime, zm::host::LoadedPlugin& plugin);

    // The plug-in's menu item: shows the panel, making it first if need be.
    void ShowPanel();
    // Sets "Selection Only" through its flyout item, which toggles it.
    void SetSelectionOnly(bool on);
    // Chooses a category's flyout item (2-12).
    void ChooseCategory(int32_t mode);
    // Chooses "&Save..."; the host's save dialog answers what the session was given.
    void Save();
    // The text the panel shows, as it shows it.
    std::string ShownText() const;

private:
    zm::host::Runtime& runtime_;
    zm::host::LoadedPlugin& plugin_;
};

}  // namespace zelmora
