#include "document/Art.hpp"

#include <stdexcept>
#include <unordered_set>

namespace zm::host::document {

namespace {

std::unordered_set<const void*>& LiveArt() {
    static std::unordered_set<const void*> live;
    return live;
}

}  // namespace

Art::Art(ArtType type, std::string id) : type_(type), id_(std::move(id)) {
    LiveArt().insert(this);
}

Art::~Art() { LiveArt().erase(this); }

bool Art::IsLive(const void* address) {
    return address != nullptr && LiveArt().count(address) != 0;
}

Art& Art::Add(std::unique_ptr<Art> child) {
    if (!child) {
        throw std::invalid_argument("no art to add");
    }
    child->parent_ = this;
    if (type_ == ArtType::CompoundPath) {
        child->attributes_ |= kArtCompoundMember;
    }
    children_.push_back(std::move(child));
    return *children_.back();
}

Art& Art::ResultGroup() {
    if (type_ != ArtType::PluginGroup) {
        throw std::logic_error("only a plug-in group has a result group");
    }
    if (children_.empty()) {
        Add(std::make_unique<Art>(ArtType::Group));
    }
    return *children_.front();
}

void Art::SetSelected(bool selected) {
    if (selected) {
        attributes_ |= kArtSelected;
    } else {
        attributes_ &= ~kArtSelected;
    }
    for (auto& child : children_) {
        child->SetSelected(selected);
    }
}

}  // namespace zm::host::document
