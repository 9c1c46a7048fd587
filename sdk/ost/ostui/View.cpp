#include "ostui/View.hpp"

#include <algorithm>

namespace ostui {

View::View(std::string id) : id_(std::move(id)) {}

View::~View() {
    for (const ViewPtr& child : children_) {
        child->parent_ = nullptr;
    }
}

void View::SetFrame(const ostcore::Rect& frame) {
    frame_ = frame;
    OnFrameChanged();
}

bool View::IsEnabled() const {
    for (const View* view = this; view != nullptr; view = view->parent_) {
        if (!view->enabled_) {
            return false;
        }
    }
    return true;
}

void View::AddChild(const ViewPtr& child) {
    if (!child) {
        return;
    }
    ViewPtr keep = child;  // the old parent may hold the last reference
    if (child->parent_ != nullptr) {
        child->parent_->RemoveChild(child.get());
    }
    child->parent_ = this;
    children_.push_back(keep);
}

bool View::RemoveChild(const View* child) {
    auto found = std::find_if(children_.begin(), children_.end(),
                              [&](const ViewPtr& held) { return held.get() == child; });
    if (found == children_.end()) {
        return false;
    }
    (*found)->parent_ = nullptr;
    children_.erase(found);
    return true;
}

void View::RemoveAllChildren() {
    for (const ViewPtr& child : children_) {
        child->parent_ = nullptr;
    }
    children_.clear();
}

ViewPtr View::FindChild(std::string_view id) const {
    for (const ViewPtr& child : children_) {
        if (child->id_ == id) {
            return child;
        }
        if (ViewPtr found = child->FindChild(id)) {
            return found;
        }
    }
    return nullptr;
}

void View::SetProperty(const std::string& name, boost::any value) {
    properties_[name] = std::move(value);
}

const boost::any* View::Property(const std::string& name) const {
    auto found = properties_.find(name);
    return found == properties_.end() ? nullptr : &found->second;
}

}  // namespace ostui
