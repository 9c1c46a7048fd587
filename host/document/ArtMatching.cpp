#include "document/ArtMatching.hpp"

#include <algorithm>

namespace zm::host::document {

namespace {

void Collect(Art& art, std::span<const MatchSpecification> specifications,
             std::vector<Art*>& matches) {
    if (std::any_of(specifications.begin(), specifications.end(),
                    [&](const MatchSpecification& s) { return Fits(art, s); })) {
        matches.push_back(&art);
    }
    for (const auto& child : art.Children()) {
        Collect(*child, specifications, matches);
    }
}

}  // namespace

bool Fits(const Art& art, const MatchSpecification& specification) {
    bool typeFits = specification.type == -1 ||
                    specification.type == static_cast<int16_t>(art.Type());
    return typeFits && (art.Attributes() & specification.mask) == specification.value;
}

std::vector<Art*> MatchArt(std::span<Layer* const> layers,
                           std::span<const MatchSpecification> specifications) {
    std::vector<Art*> matches;
    for (Layer* layer : layers) {
        for (const auto& child : layer->root->Children()) {
            Collect(*child, specifications, matches);
        }
    }
    return matches;
}

}  // namespace zm::host::document
