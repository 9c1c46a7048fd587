#pragma once

#include "document/Document.hpp"

#include <cstddef>
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
    std::size_t Count() const { return documents_.size(); }
    // In the order they were opened or made current; the last is the current one.
    document::Document& At(std::size_t index) const { return *documents_.at(index); }
    // Makes an open document the current one; false when it is not open.
    bool MakeCurrent(const document::Document* document);

private:
    std::vector<std::unique_ptr<document::Document>> documents_;
};

}  // namespace zm::host
