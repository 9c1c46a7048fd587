#pragma once

#include <zelmora/ZMArtSuite.h>
#include <zelmora/ZMArtTypes.h>

#include "document/Art.hpp"
#include "runtime/HostError.hpp"

namespace zm::host {

// An art handle is the address of a model Art object.
inline ZMArtHandle HandleOf(const document::Art* art) {
    return reinterpret_cast<ZMArtHandle>(const_cast<document::Art*>(art));
}

// The art a handle names; ZM_ERR_BAD_ARGUMENT for null or an address where no art lives.
inline document::Art& ArtOf(ZMArtHandle handle) {
    if (!document::Art::IsLive(handle)) {
        throw HostError(ZM_ERR_BAD_ARGUMENT, "not an art handle");
    }
    return *reinterpret_cast<document::Art*>(handle);
}

// As ArtOf, and ZM_ERR_WRONG_ART_TYPE unless the art is of that type.
inline document::Art& ArtOf(ZMArtHandle handle, document::ArtType type) {
    document::Art& art = ArtOf(handle);
    if (art.Type() != type) {
        throw HostError(ZM_ERR_WRONG_ART_TYPE, "art of another type");
    }
    return art;
}

}  // namespace zm::host
