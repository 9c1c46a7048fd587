#pragma once

#include "document/Document.hpp"

#include <string_view>

namespace zm::host::document {

// The first object of the layers' trees, in document order (each layer's own group before
// what it holds), whose id is `id`; null when none has it or id is empty. Definitions
// outside the layers (symbols, patterns, masks) are not searched.
Art* FindArtById(Document& document, std::string_view id);

}  // namespace zm::host::document
