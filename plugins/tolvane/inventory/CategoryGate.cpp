#include "inventory/CategoryGate.hpp"

#include "shell/Globals.hpp"

#include <algorithm>

namespace tolvane {

bool ShownOrSaving(std::initializer_list<int16_t> categories) {
    if (gGlobals->saving != 0) {
        return true;
    }
    return std::find(categories.begin(), categories.end(), gGlobals->mode) != categories.end();
}

}  // namespace tolvane
