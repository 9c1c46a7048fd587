#include "ostui/ListBox.hpp"

#include <algorithm>

namespace ostui {

ListBox::ListBox(std::string id) : View(std::move(id)) {}

ListBox::~ListBox() = default;

void ListBox::AppendItem(const ListItemPtr& item) {
    if (!item) {
        return;
    }
    item->selected_ = false;
    items_.push_back(item);
    AddChild(item);
    PlaceItems();
}

bool ListBox::RemoveItem(const ListItem* item) {
    auto found = std::find_if(items_.begin(), items_.end(),
                              [&](const ListItemPtr& held) { return held.get() == item; });
    if (found == items_.end()) {
        return false;
    }
    ListItemPtr keep = *found;
    keep->selected_ = false;
    items_.erase(found);
    RemoveChild(keep.get());
    PlaceItems();
    ClampScroll();
    return true;
}

void ListBox::RemoveAllItems() {
    for (const ListItemPtr& item : items_) {
        item->selected_ = false;
        RemoveChild(item.get());
    }
    items_.clear();
    scroll_ = {};
}

bool ListBox::SelectItem(const ListItemPtr& item) {
    if (!item || std::find(items_.begin(), items_.end(), item) == items_.end()) {
        return false;
    }
    for (const ListItemPtr& other : items_) {
        other->selected_ = false;
    }
    item->selected_ = true;
    ItemSelected.Fire(*this, item);
    return true;
}

void ListBox::DeselectItem(const ListItemPtr& item) {
    if (item) {
        item->selected_ = false;
    }
}

void ListBox::DeselectAll() {
    for (const ListItemPtr& item : items_) {
        item->selected_ = false;
    }
}

ListItemPtr ListBox::FirstSelectedItem() const {
    std::ptrdiff_t index = SelectedIndex();
    return index < 0 ? nullptr : items_[static_cast<std::size_t>(index)];
}

ListItemPtr ListBox::ClickAt(ostcore::Point point) {
    if (!IsEnabled() || !IsVisible()) {
        return nullptr;
    }
    ostcore::Point content{point.x + scroll_.x, point.y + scroll_.y};
    for (const ListItemPtr& item : items_) {
        if (item->Frame().Contains(content)) {
            // Headless, press and release arrive together, so selecting on release and on
            // press end the same way.
            SelectItem(item);
            return item;
        }
    }
    if (options_.deselectAllOnEmptyClick && options_.emptySelectionAllowed) {
        DeselectAll();
    }
    return nullptr;
}

void ListBox::KeyDown(Key key) {
    if (!options_.keyboardSelection || !IsEnabled() || items_.empty()) {
        return;
    }
    std::ptrdiff_t count = static_cast<std::ptrdiff_t>(items_.size());
    std::ptrdiff_t index = SelectedIndex();
    std::ptrdiff_t next = key == Key::Down ? (index < 0 ? 0 : std::min(index + 1, count - 1))
                                           : (index < 0 ? count - 1 : std::max<std::ptrdiff_t>(index - 1, 0));
    const ListItemPtr& item = items_[static_cast<std::size_t>(next)];
    SelectItem(item);
    ScrollToMakeVisible(item->Frame());
}

float ListBox::ContentHeight() const {
    float height = 0.0f;
    for (const ListItemPtr& item : items_) {
        height += item->Height();
    }
    return height;
}

void ListBox::ScrollToMakeVisible(const ostcore::Rect& contentRect) {
    float visibleHeight = Frame().height;
    if (contentRect.y < scroll_.y || contentRect.height > visibleHeight) {
        scroll_.y = contentRect.y;
    } else if (contentRect.Bottom() > scroll_.y + visibleHeight) {
        scroll_.y = contentRect.Bottom() - visibleHeight;
    }
    ClampScroll();
}

void ListBox::OnFrameChanged() {
    PlaceItems();
    ClampScroll();
}

void ListBox::PlaceItems() {
    float y = 0.0f;
    for (const ListItemPtr& item : items_) {
        float height = item->Height();
        float width = item->Content() ? item->Content()->Frame().width : 0.0f;
        item->SetFrame({0.0f, y, std::max(width, Frame().width), height});
        y += height;
    }
}

void ListBox::ClampScroll() {
    float maxY = std::max(0.0f, ContentHeight() - Frame().height);
    scroll_.y = std::clamp(scroll_.y, 0.0f, maxY);
    scroll_.x = 0.0f;
}

std::ptrdiff_t ListBox::SelectedIndex() const {
    for (std::size_t i = 0; i < items_.size(); ++i) {
        if (items_[i]->selected_) {
            return static_cast<std::ptrdiff_t>(i);
        }
    }
    return -1;
}

}  // namespace ostui
