#include "ostui/ListItem.hpp"

namespace ostui {

ListItem::ListItem(ViewPtr content) : content_(std::move(content)) {
    AddChild(content_);
}

ListItem::~ListItem() = default;

}  // namespace ostui
