#pragma once

#include "document/Document.hpp"
#include "runtime/HostError.hpp"
#include "runtime/Runtime.hpp"

#include <zelmora/ZMTypes.h>

namespace zm::host {

// The document the suites work on; throws HostError(ZM_ERR_NO_DOCUMENT) when none is open.
inline document::Document& RequireCurrentDocument() {
    document::Document* document = Runtime::Current().documents.Current();
    if (document == nullptr) {
        throw HostError(ZM_ERR_NO_DOCUMENT, "no document is open");
    }
    return *document;
}

}  // namespace zm::host
