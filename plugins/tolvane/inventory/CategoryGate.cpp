#include "inventory/CategoryGate.hpp"

#include "shell/Globals.hpp"

#include <algorithm>

namespace tolvane {

namespace {

bool sEveryCategory = false;

}  // namespace

EveryCategory::EveryCategory() : previous_(sEveryCategory) { sEveryCategory = true; }

EveryCategory::~EveryCategory() { sEveryCategory = previous_; }

bool ShownOrSaving(std::initializer_list<int16_t> categories) {
    if (sEveryCategory || gGlobals->saving != 0) {
        return true;
    }
    return std::find(categories.begin(), categories.end(), gGlobals->mode) != categories.end();
}

}  // namespace tolvane
