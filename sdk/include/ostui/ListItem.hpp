#pragma once

#include "ostcore/Export.hpp"
#include "ostui/View.hpp"

namespace ostui {

class ListItem;
using ListItemPtr = boost::intrusive_ptr<ListItem>;

// One row of a list box: it holds any view as its content and is as tall as that content's
// frame. The list box places the row; the content keeps its own frame inside the row.
class OST_API ListItem : public View {
public:
    explicit ListItem(ViewPtr content);
    ~ListItem() override;

    const ViewPtr& Content() const { return content_; }
    float Height() const { return content_ ? content_->Frame().height : 0.0f; }
    bool IsSelected() const { return selected_; }
    bool LaysOutChildren() const override { return false; }

private:
    friend class ListBox;  // only the list box changes the selection, so it can report it
    ViewPtr content_;
    bool selected_ = false;
};

}  // namespace ostui
