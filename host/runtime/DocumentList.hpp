#pragma once

#include "document/Document.hpp"

#include <memory>
#include <vector>

namespace zm::host {

// The open documents; the last one opened is the current one, as in a window stack.
class DocumentList {
public:
    document::Document& Add(std::unique_ptr<document::Document> document);
    // Null when no document is open.
    document::Document* Current() const;
    // Closes the current document; nothing happens when none is open.
    void CloseCurrent();
    bool Empty() const { return documents_.empty(); }

private:
    std::vector<std::unique_ptr<document::Document>> documents_;
};

}  // namespace zm::host
