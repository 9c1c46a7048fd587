#pragma once

#include "document/Document.hpp"
#include "runtime/HostError.hpp"

#include <zelmora/ZMDocumentSuite.h>

#include <optional>
#include <string>

namespace zm::host {

// A ZMColorProfile is the address of a profile name the document holds; a document without
// a profile for a space gives a null handle.
inline ZMColorProfile ToProfileHandle(const std::optional<std::string>& profile) {
    return profile ? reinterpret_cast<ZMColorProfile>(const_cast<std::string*>(&*profile))
                   : nullptr;
}

// The name of a profile of the document; HostError(ZM_ERR_BAD_ARGUMENT) for a null handle or
// one of no profile of it.
inline const std::string& RequireProfileName(const document::Document& document,
                                             ZMColorProfile handle) {
    for (const auto* profile :
         {&document.rgbProfile, &document.cmykProfile, &document.grayProfile}) {
        if (handle != nullptr && ToProfileHandle(*profile) == handle) {
            return **profile;
        }
    }
    throw HostError(ZM_ERR_BAD_ARGUMENT, "unknown colour profile");
}

}  // namespace zm::host
