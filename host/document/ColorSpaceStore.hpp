#pragma once

#include "document/ColorSpace.hpp"

#include <cstddef>
#include <memory>
#include <unordered_set>
#include <vector>

namespace zm::host::document {

// The colour spaces of one document. Each space is held once: the same description always
// gives the same space, at the same address, until the store (its document) goes.
class ColorSpaceStore {
public:
    ColorSpaceStore() = default;
    ColorSpaceStore(const ColorSpaceStore&) = delete;
    ColorSpaceStore& operator=(const ColorSpaceStore&) = delete;

    // Whether `space` is one of this store's spaces; null is not.
    bool Holds(const ColorSpace* space) const { return held_.count(space) != 0; }
    std::size_t Size() const { return spaces_.size(); }

private:
    friend const ColorSpace& Intern(ColorSpaceStore& store, ColorSpace space);

    std::vector<std::unique_ptr<ColorSpace>> spaces_;
    std::unordered_set<const ColorSpace*> held_;
};

// The store's space equal to `space`, added when the store has none. Throws
// std::invalid_argument when its base or one of its members is not a space of this store,
// so that a space never refers outside its document.
const ColorSpace& Intern(ColorSpaceStore& store, ColorSpace space);

}  // namespace zm::host::document
