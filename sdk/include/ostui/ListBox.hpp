#pragma once

#include "ostcore/Event.hpp"
#include "ostcore/Export.hpp"
#include "ostcore/Point.hpp"
#include "ostui/ListItem.hpp"
#include "ostui/ListSelectionOptions.hpp"
#include "ostui/ThemeFont.hpp"
#include "ostui/View.hpp"

#include <cstddef>
#include <vector>

namespace ostui {

class ListBox;
using ListBoxPtr = boost::intrusive_ptr<ListBox>;

// A vertical list of rows of any height that scrolls its content (the rows stacked from y 0)
// inside its frame. One row at most is selected.
class OST_API ListBox : public View {
public:
    enum class Key { Up, Down };

    explicit ListBox(std::string id = {});
    ~ListBox() override;

    void AppendItem(const ListItemPtr& item);
    // False when the item is not in this list.
    bool RemoveItem(const ListItem* item);
    void RemoveAllItems();
    const std::vector<ListItemPtr>& Items() const { return items_; }
    std::size_t ItemCount() const { return items_.size(); }

    // The theme font size of the text its rows show.
    ThemeFontSize FontSize() const { return fontSize_; }
    void SetFontSize(ThemeFontSize size) { fontSize_ = size; }

    ListSelectionOptions& SelectionOptions() { return options_; }
    const ListSelectionOptions& SelectionOptions() const { return options_; }
    void SetSelectOnMouseUp(bool on) { options_.selectOnMouseUp = on; }
    void SetFocusIndication(bool on) { options_.focusIndication = on; }
    void SetEmptySelectionAllowed(bool on) { options_.emptySelectionAllowed = on; }
    void SetDeselectAllOnEmptyClick(bool on) { options_.deselectAllOnEmptyClick = on; }
    void SetKeyboardSelection(bool on) { options_.keyboardSelection = on; }

    // Selects the row (deselecting any other) and fires ItemSelected. False for a row that is
    // not in this list.
    bool SelectItem(const ListItemPtr& item);
    void DeselectItem(const ListItemPtr& item);
    void DeselectAll();
    // The selected row; null when none is.
    ListItemPtr FirstSelectedItem() const;

    // A click (press and release) at a point of the list's frame, in the list's own
    // coordinates (0, 0 is its visible top left). A row under the point is selected; a click
    // below the rows clears the selection when the options allow it. A disabled list ignores
    // clicks. Returns the row hit, if any.
    ListItemPtr ClickAt(ostcore::Point point);
    // An arrow key while the list has the focus; ignored without keyboard selection.
    void KeyDown(Key key);

    // Fired after a row became selected, with the list and the row.
    ostcore::Event<ListBox&, const ListItemPtr&> ItemSelected;

    bool LaysOutChildren() const override { return false; }

    // The content's height: the rows' heights added up.
    float ContentHeight() const;
    // How far the content is scrolled: the content point shown at the list's top left.
    ostcore::Point ScrollOffset() const { return scroll_; }
    // Scrolls the least distance that shows the content rectangle whole (its top when it is
    // taller than the list), within the content's extent.
    void ScrollToMakeVisible(const ostcore::Rect& contentRect);

protected:
    void OnFrameChanged() override;

private:
    void PlaceItems();
    void ClampScroll();
    std::ptrdiff_t SelectedIndex() const;

    std::vector<ListItemPtr> items_;
    ListSelectionOptions options_;
    ostcore::Point scroll_;
    ThemeFontSize fontSize_ = ThemeFontSize::Regular;
};

}  // namespace ostui
