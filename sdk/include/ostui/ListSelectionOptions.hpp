#pragma once

namespace ostui {

// How a list box answers clicks and keys.
struct ListSelectionOptions {
    bool selectOnMouseUp = false;       // select when the button is released, not pressed
    bool focusIndication = true;        // draw the focus ring while the list has the focus
    bool emptySelectionAllowed = true;  // a click may leave no row selected
    bool deselectAllOnEmptyClick = true;  // a click below the last row clears the selection
    bool keyboardSelection = true;      // arrow keys move the selection
};

}  // namespace ostui
