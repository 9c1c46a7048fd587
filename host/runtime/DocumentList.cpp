#include "runtime/DocumentList.hpp"

#include <algorithm>
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

bool DocumentList::MakeCurrent(const document::Document* document) {
    auto found = std::find_if(documents_.begin(), documents_.end(),
                              [document](const auto& open) { return open.get() == document; });
    if (found == documents_.end()) {
        return false;
    }
    std::rotate(found, found + 1, documents_.end());
    return true;
}

void DocumentList::CloseCurrent() {
    if (!documents_.empty()) {
        documents_.pop_back();
    }
}

}  // namespace zm::host
