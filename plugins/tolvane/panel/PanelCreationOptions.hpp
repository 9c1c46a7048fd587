#pragma once

#include <ostzm/BasePanelCreationOptions.hpp>

namespace tolvane {

// How the Document Info panel first appears: its title, size and tab icons.
struct PanelCreationOptions : ostzm::BasePanelCreationOptions {
    PanelCreationOptions();
};

}  // namespace tolvane
