#pragma once

#include "document/Document.hpp"
#include "runtime/HostError.hpp"

#include <zelmora/ZMArtStyleSuite.h>

namespace zm::host {

// A ZMArtStyleHandle is the address of a style in its document's art style cache.
inline ZMArtStyleHandle ToArtStyleHandle(const document::ArtStyle& style) {
    return reinterpret_cast<ZMArtStyleHandle>(const_cast<document::ArtStyle*>(&style));
}

// HostError(ZM_ERR_BAD_ARGUMENT) for a null handle or a style the document never handed out.
inline const document::ArtStyle& RequireArtStyle(const document::Document& document,
                                                 ZMArtStyleHandle handle) {
    const auto* style = reinterpret_cast<const document::ArtStyle*>(handle);
    if (style == nullptr || !document.artStyles.Holds(style)) {
        throw HostError(ZM_ERR_BAD_ARGUMENT, "unknown art style");
    }
    return *style;
}

// Art handles are the model objects' addresses.
inline const document::Art& RequireStyledArt(ZMArtHandle handle) {
    if (handle == nullptr) {
        throw HostError(ZM_ERR_BAD_ARGUMENT, "missing art");
    }
    return *reinterpret_cast<const document::Art*>(handle);
}

}  // namespace zm::host
