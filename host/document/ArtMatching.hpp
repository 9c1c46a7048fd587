#pragma once

#include "document/Art.hpp"

#include <cstdint>
#include <span>
#include <vector>

namespace zm::host::document {

// One entry of a matching request: an art type (-1 for any) and the attribute bits under
// mask that must equal value.
struct MatchCriterion {
    int16_t type = -1;
    uint32_t mask = 0;
    uint32_t value = 0;
};

bool Fits(const Art& art, const MatchCriterion& criterion);

// Every object of the layers' trees that fits at least one criterion, each once, in
// document order (pre-order: an object before what it holds, layers from the first). The
// layers' own groups are not art of their own and are never returned.
std::vector<Art*> MatchArt(std::span<Layer* const> layers,
                           std::span<const MatchCriterion> criteria);

}  // namespace zm::host::document
