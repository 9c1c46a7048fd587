#pragma once

#include "document/Document.hpp"
#include "runtime/HostError.hpp"
#include "runtime/Runtime.hpp"

#include <zelmora/ZMTypes.h>

namespace zm::host {

// The document the suites work on; throws HostError(ZM_ERR_NO_DOCUMENT) when none is open.
inline document::Document& CurrentDocument(Runtime& runtime) {
    document::Document* current = runtime.documents.Current();
    if (current == nullptr) {
        throw HostError(ZM_ERR_NO_DOCUMENT, "no document is open");
    }
    return *current;
}

inline document::Document& RequireCurrentDocument() { return CurrentDocument(Runtime::Current()); }

}  // namespace zm::host
