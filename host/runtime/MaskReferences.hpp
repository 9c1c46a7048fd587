#pragma once

#include <zelmora/ZMArtTypes.h>

#include <cstdint>

#include "document/Art.hpp"
#include "runtime/HandleList.hpp"

namespace zm::host {

// A counted reference to the opacity mask of one art object; one record per masked object
// while any reference to it is held.
struct MaskReference {
    const document::Art* owner = nullptr;
    int32_t references = 1;
};

using MaskReferences = HandleList<MaskReference, ZMMaskHandle>;

}  // namespace zm::host
