#include "document/ColorSpaceStore.hpp"

#include <algorithm>
#include <stdexcept>
#include <utility>

namespace zm::host::document {

const ColorSpace& Intern(ColorSpaceStore& store, ColorSpace space) {
    if (space.base != nullptr && !store.Holds(space.base)) {
        throw std::invalid_argument("a colour space based on a space of another store");
    }
    for (const ColorSpace* member : space.members) {
        if (!store.Holds(member)) {
            throw std::invalid_argument("a colour space member of another store");
        }
    }
    // A document has a handful of spaces, so a look through all of them is quick enough.
    auto found = std::find_if(store.spaces_.begin(), store.spaces_.end(),
                              [&](const auto& held) { return *held == space; });
    if (found != store.spaces_.end()) {
        return **found;
    }
    store.spaces_.reserve(store.spaces_.size() + 1);
    auto added = std::make_unique<ColorSpace>(std::move(space));
    store.held_.insert(added.get());
    store.spaces_.push_back(std::move(added));
    return *store.spaces_.back();
}

}  // namespace zm::host::document
