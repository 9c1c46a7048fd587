#pragma once

#include <zelmora/ZMArtTypes.h>

#include <cstddef>
#include <vector>

#include "document/Art.hpp"
#include "document/Document.hpp"
#include "runtime/HostError.hpp"

namespace zm::host {

// A layer handle is the address of a model Layer; a layer list handle is the address of the
// document whose layers it orders.
inline ZMLayerHandle HandleOf(const document::Layer* layer) {
    return reinterpret_cast<ZMLayerHandle>(const_cast<document::Layer*>(layer));
}

inline ZMLayerList LayerListOf(const document::Document& document) {
    return reinterpret_cast<ZMLayerList>(const_cast<document::Document*>(&document));
}

// The position of a layer of the document; ZM_ERR_BAD_ARGUMENT for a handle naming none.
inline std::size_t LayerIndex(const document::Document& document, ZMLayerHandle handle) {
    for (std::size_t index = 0; index < document.layers.size(); ++index) {
        if (HandleOf(document.layers[index].get()) == handle) {
            return index;
        }
    }
    throw HostError(ZM_ERR_BAD_ARGUMENT, "not a layer of the current document");
}

inline document::Layer& LayerOf(const document::Document& document, ZMLayerHandle handle) {
    return *document.layers[LayerIndex(document, handle)];
}

// The document a layer list orders: only the current document's list is accepted.
inline document::Document& DocumentOfList(document::Document& current, ZMLayerList list) {
    if (list != LayerListOf(current)) {
        throw HostError(ZM_ERR_BAD_ARGUMENT, "not the current document's layer list");
    }
    return current;
}

inline std::vector<document::Layer*> LayersOf(const document::Document& document) {
    std::vector<document::Layer*> layers;
    for (const auto& layer : document.layers) {
        layers.push_back(layer.get());
    }
    return layers;
}

// A layer's own group holds the layer's art but is not art of its own.
inline bool IsLayerRoot(const document::Document& document, const document::Art& art) {
    for (const auto& layer : document.layers) {
        if (layer->root.get() == &art) {
            return true;
        }
    }
    return false;
}

}  // namespace zm::host
