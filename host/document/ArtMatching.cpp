#include "document/ArtMatching.hpp"

#include <algorithm>

namespace zm::host::document {

namespace {

void Collect(Art& art, std::span<const MatchCriterion> criteria,
             std::vector<Art*>& matches) {
    if (std::any_of(criteria.begin(), criteria.end(),
                    [&](const MatchCriterion& c) { return Fits(art, c); })) {
        matches.push_back(&art);
    }
    for (const auto& child : art.Children()) {
        Collect(*child, criteria, matches);
    }
}

}  // namespace

bool Fits(const Art& art, const MatchCriterion& criterion) {
    bool typeFits = criterion.type == -1 ||
                    criterion.type == static_cast<int16_t>(art.Type());
    return typeFits && (art.Attributes() & criterion.mask) == criterion.value;
}

std::vector<Art*> MatchArt(std::span<Layer* const> layers,
                           std::span<const MatchCriterion> criteria) {
    std::vector<Art*> matches;
    for (Layer* layer : layers) {
        for (const auto& child : layer->root->Children()) {
            Collect(*child, criteria, matches);
        }
    }
    return matches;
}

}  // namespace zm::host::document
