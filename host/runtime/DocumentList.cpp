#include "runtime/DocumentList.hpp"

#include <stdexcept>

namespace zm::host {

document::Document& DocumentList::Add(std::unique_ptr<document::Document> document) {
    if (!document) {
        throw std::invalid_argument("no document to add");
    }
    documents_.push_back(std::move(document));
    return *documents_.back();
}

document::Document* DocumentList::Current() const {
    return documents_.empty() ? nullptr : documents_.back().get();
}

void DocumentList::CloseCurrent() {
    if (!documents_.empty()) {
        documents_.pop_back();
    }
}

}  // namespace zm::host
