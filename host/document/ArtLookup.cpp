#include "document/ArtLookup.hpp"

#include <vector>

namespace zm::host::document {

Art* FindArtById(Document& document, std::string_view id) {
    if (id.empty()) {
        return nullptr;
    }
    // An explicit stack: trees may be deep.
    std::vector<Art*> pending;
    for (auto layer = document.layers.rbegin(); layer != document.layers.rend(); ++layer) {
        pending.push_back((*layer)->root.get());
    }
    while (!pending.empty()) {
        Art* art = pending.back();
        pending.pop_back();
        if (art->Id() == id) {
            return art;
        }
        const auto& children = art->Children();
        for (auto child = children.rbegin(); child != children.rend(); ++child) {
            pending.push_back(child->get());
        }
    }
    return nullptr;
}

}  // namespace zm::host::document
